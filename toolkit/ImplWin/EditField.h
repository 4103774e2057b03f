#pragma once

#include "toolkit/ImplWin/HWNDBased.h"
#include "toolkit/ImplWin/Text.h"

#include <string>

namespace NRDM {

/// What an edit field tells the control around it.
class EditFieldOwner {
public:
    /// A key goes to the owner first; true when it had a use for it.
    virtual bool fieldMessage(UINT message, WPARAM wide, LPARAM lengthy) = 0;
    virtual void fieldChanged() = 0;
    /// The focus came from `other`, or went there; null where the system does not tell.
    virtual void fieldFocus(bool taken, HWND other) = 0;
    virtual void fieldFailed() noexcept = 0;
    [[nodiscard]] virtual FaceState fieldState() const = 0;
    [[nodiscard]] virtual const Palette& fieldPalette() const = 0;

protected:
    ~EditFieldOwner() = default;
};

/// Windows' own single-line edit, drawn by us: each character stands where the edit has it, so that
/// caret and selection agree with what is seen.
///
/// An edit paints out of turn while it is typed into. It is kept from that by switching its drawing
/// off during such messages; afterwards it is painted once, if it looks different.
class EditField final : public HWNDBased {
public:
    EditField(Screen& screen, EditFieldOwner& owner) : HWNDBased(screen), owner_(owner) {}

    /// Throws `NRDMResourceException`.
    void open(HWND parent, int justify);

    /// ADM's numbers. Text and focus stay. Throws `NRDMResourceException`.
    void setJustify(int justify);
    void setMaximumLength(int characters) const;

    [[nodiscard]] std::wstring text() const;
    /// Tells nobody.
    void setText(const std::wstring& text);
    void selectAll() const;
    void setFont(TextStyle style, Scale scale);
    void place(const RECT& area);

    /// The distance of the baseline from the window's top.
    [[nodiscard]] int ascent() const noexcept { return ascent_; }
    [[nodiscard]] int lineHeight() const noexcept { return lineHeight_; }

protected:
    LRESULT serve(UINT message, WPARAM wide, LPARAM lengthy) override;
    void paint(const Canvas& canvas, const RECT& area) override;
    void failed() noexcept override { owner_.fieldFailed(); }
    [[nodiscard]] Scale scale() const override { return scale_; }
    [[nodiscard]] const Palette& palette() const override { return owner_.fieldPalette(); }

private:
    /// All that can be seen of the edit.
    struct Seen {
        std::wstring text;
        DWORD selection = 0;
        LRESULT firstCharacter = 0;

        bool operator==(const Seen&) const = default;
    };
    [[nodiscard]] Seen seen() const;
    LRESULT serveSilently(UINT message, WPARAM wide, LPARAM lengthy);

    EditFieldOwner& owner_;
    int justify_ = 0;
    TextStyle style_;
    Scale scale_;
    ai::Owned<GdiObjectTraits<HFONT>> font_;
    int ascent_ = 0;
    int lineHeight_ = 0;
    bool silent_ = false; ///< a message is being served whose drawing is switched off
};

} // namespace NRDM
