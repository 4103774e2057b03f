#pragma once

#include "toolkit/ImplCommon/Peers.h"
#include "toolkit/gallery/Suites.h"

#include <windows.h>

#include <initializer_list>
#include <memory>
#include <string>
#include <vector>

namespace NRDM::gallery {

/// How an item is to be shown besides what it is told.
enum class Pose { Plain, RollOver, Pressed, Focused };

/// An item of a page, to be told in one go what it is like.
class Exhibit {
public:
    Exhibit(const Suites& suites, ADMItemRef item) : suites_(&suites), item_(item) {}

    Exhibit& disabled();
    Exhibit& unknown();
    Exhibit& on();
    Exhibit& style(ADMItemStyle style);
    Exhibit& justify(ADMJustify justify);
    Exhibit& tip(const char* text);
    Exhibit& pictures(const PictureIds& ids);
    /// A value between 0 and 100.
    Exhibit& percent(float value);
    /// A number with its unit, which stands for points where it is one of length.
    Exhibit& number(float value, ADMUnits units = kADMNoUnits, int precision = 0);
    /// "-" is a separator; `chosen` is a position, or -1 for none.
    Exhibit& entries(std::initializer_list<const char*> texts, int chosen);
    Exhibit& drawn(ADMItemDrawProc draw);
    /// Called when the item goes.
    Exhibit& dropped(ADMItemDestroyProc drop);
    Exhibit& pose(Pose pose);

    /// Brings the item into its pose, painted, until the next message it gets.
    void strike() const;

private:
    const Suites* suites_;
    ADMItemRef item_;
    Pose pose_ = Pose::Plain;
};

/// One page: a dialog and what hangs in it, made through the suites.
class Page {
public:
    enum class Fonts { OfDialogs, OfPalettes };

    Page(const char* title, Extent size, Fonts fonts);
    /// Takes over a dialog that there is.
    explicit Page(ADMDialogRef dialog) : dialog_(dialog) {}
    ~Page();
    Page(const Page&) = delete;
    Page& operator=(const Page&) = delete;

    /// The reference holds until the next item is added. Without an id the item gets one with no
    /// neighbours, so that radio buttons form groups only where they are asked to.
    Exhibit& add(const char* type, const Bounds& bounds, const char* text = "", int id = 0,
                 ADMUserData userData = nullptr);

    void show();
    [[nodiscard]] bool isShown() const;
    /// Shows it until it is ended, and answers with what.
    int run();
    /// Painted, with every exhibit in its pose.
    void pose() const;
    [[nodiscard]] HWND window() const;
    [[nodiscard]] ADMDialogRef dialog() const noexcept { return dialog_; }

private:
    Suites suites_;
    ADMDialogRef dialog_;
    std::vector<Exhibit> exhibits_;
};

} // namespace NRDM::gallery
