#pragma once

#include "easel/window/Canvas.h"
#include "easel/window/DialogWatch.h"
#include "easel/window/Dock.h"
#include "easel/window/MenuBar.h"
#include "easel/window/Swatches.h"
#include "easel/window/ToolBar.h"
#include "easel/window/Window.h"

#include <map>

namespace easel::window {

/// The window of the program: menus, tools, canvas, dock and status line, and what its own menu
/// items do.
class Frame : public NativeWindow {
public:
    Frame(Session& session, const WindowOptions& options);
    ~Frame() override;

    /// Serves the user until the window is closed. Returns what the plug-in did wrong.
    [[nodiscard]] std::vector<std::string> run();

    // What menu items do besides lines of a script
    void makeNew();
    void openFile();
    bool save();
    bool saveAs();
    void exportPicture();
    void closeDocument();
    void exit();
    void showAll() { canvas_.showAll(); }
    void showActualSize();
    void zoomIn() { canvas_.zoomBy(1.5); }
    void zoomOut() { canvas_.zoomBy(1 / 1.5); }
    void toggleSmartGuides();

private:
    LRESULT handleMessage(UINT message, WPARAM first, LPARAM second) override;
    void arrange();
    void refreshMenu(HMENU menu);
    void command(int id);
    bool takesKey(const MSG& message);
    bool nudge(WPARAM key);
    void follow();
    void showStatus();
    void tick();
    void open(const std::filesystem::path& file);
    bool saveTo(const std::filesystem::path& file);
    /// Asks about unsaved changes; false when the user would rather go on.
    bool mayClose(Document& document);
    void noteSaved();
    /// Writes changed drawings beside their files, so that a crash loses little.
    void keepCopies();
    void dropCopy(const Document& document);
    void keepRecord();
    [[nodiscard]] std::filesystem::path askForFile(bool toSave, const wchar_t* filter,
                                                   const wchar_t* extension) const;
    /// As a line of the kept script names it: from the script's folder where it lies there.
    [[nodiscard]] std::string nameInScript(const std::filesystem::path& file) const;

    WindowOptions options_;
    Figures figures_{options_.figures};
    Hand hand_;
    DialogWatch watch_{hand_};
    MenuBar menus_;
    ToolBar tools_;
    Swatches swatches_;
    Canvas canvas_;
    Dock dock_;
    HWND status_ = nullptr;
    HACCEL keys_ = nullptr;
    /// What each drawing was when it was opened or saved.
    std::map<const Document*, std::size_t> savedTexts_;
    std::map<const Document*, std::size_t> copiedTexts_;
    ULONGLONG copiedAt_ = 0;
    ULONGLONG tickedAt_ = 0;
    const Document* front_ = nullptr;
    std::size_t keptVersion_ = 0; ///< Of the script, on disk.
    ULONGLONG keepAgainAt_ = 0;
    std::wstring statusText_;
    bool closing_ = false;
};

} // namespace easel::window
