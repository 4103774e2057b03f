#pragma once

#include "easel/window/Figures.h"
#include "easel/window/Hand.h"
#include "easel/window/NativeWindow.h"
#include "easel/window/Pictures.h"

namespace easel::window {

/// Where the drawing is seen and drawn. Its pixels are those of the document's view.
///
///   1. What lies below the annotations, with the selection, is kept as a picture, painted again
///      only when the host says that it has changed.
///   2. Over it comes what annotators draw, within the area that is to be painted.
///   3. Annotators are asked when the system asks to be painted, which it does when nothing else
///      waits: no message to the plug-in waits for pixels.
class Canvas : public NativeWindow {
public:
    Canvas(Hand& hand, Figures& figures) : hand_(hand), figures_(figures) {}

    void open(HWND parent);
    /// Has the system ask for what the host says is to be painted.
    void follow();
    /// Tells the view how large the canvas is: after a document has come to the front.
    void fitView();
    /// The whole artboard in the middle.
    void showAll();
    /// The place on the canvas stays where it is.
    void zoomAt(POINT place, double zoom);
    void zoomBy(double factor);
    /// A key of the tool's has gone down or up: it hears of that with the mouse where it is.
    void tellKeys();

private:
    LRESULT handleMessage(UINT message, WPARAM first, LPARAM second) override;
    void paint();
    /// True when it was not up to date.
    bool paintPage();
    void paintSelection(const DocumentView& view, paint::Painter& painter);
    void paintMarquee(const DocumentView& view, paint::Painter& painter);
    void press(POINT at);
    void move(POINT at);
    void release();
    void sendKeys(const char* command, POINT at);
    [[nodiscard]] bool isBlocked() const;

    enum class Held { Nothing, Tool, Paper };

    Hand& hand_;
    Figures& figures_;
    Cursors cursors_;
    Pixels page_;
    Pixels screen_;
    std::uint64_t paintedVersion_ = 0; ///< Of the page; 0: never.
    Held held_ = Held::Nothing;
    POINT mouse_{};
};

} // namespace easel::window
