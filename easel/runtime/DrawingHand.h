#pragma once

#include "easel/document/Bezier.h"
#include "host/Handles.h"
#include "host/Types.h"

#include <optional>
#include <vector>

namespace easel {

class Art;
class Document;
struct Session;

/// What the host's own tools besides the pen do from press to release, which is one undo step.
///
///   1. Line, rectangle and ellipse are drawn out from the press; Shift holds a line to steps of 45
///      degrees and makes the others a square and a circle. The pencil follows the mouse, and at
///      the end its stroke is made of as few curves as come near enough.
///   2. The select tool picks what lies under the press, or with Shift adds it or takes it out;
///   then
///      it moves what is selected, or with Alt copies of that. From where nothing lies it drags a
///      marquee around what is to be selected.
///
/// What is drawn goes on top of the current layer and is selected. Nothing happens where art cannot
/// be added.
class DrawingHand {
public:
    enum class Kind : std::uint8_t { Select, Pencil, Line, Rectangle, Ellipse };

    explicit DrawingHand(Session& session) noexcept : session_(session) {}

    void press(Kind kind, Document& document, AIRealPoint at, ai::uint16 modifiers);
    void drag(AIRealPoint to, ai::uint16 modifiers);
    void release();
    /// `document` closes; a gesture in it ends with nothing more done.
    void forget(const Document& document) noexcept {
        if (document_ != &document) return;
        document_ = nullptr;
        marquee_.reset();
    }
    /// What the select tool drags around, as long as it does; two corners.
    [[nodiscard]] const std::optional<AIRealRect>& marquee() const noexcept { return marquee_; }

private:
    void pick(bool adds);
    void moveTo(AIRealPoint to, bool copies);
    void drawOut(Art& path, AIRealPoint to, bool regular);
    void finishStroke(Art& path);
    void selectInMarquee();
    [[nodiscard]] bool isDrawing() const { return kind_ != Kind::Select; }

    Session& session_;
    Kind kind_ = Kind::Select;
    Document* document_ = nullptr; ///< Null between gestures.
    AIArtHandle path_ = nullptr;   ///< That is drawn; dead: the plug-in has taken it away.
    AIRealPoint start_{};
    AIRealPoint last_{};
    bool moved_ = false;
    std::optional<AIRealRect> marquee_;
    std::vector<CurvePoint> stroke_;
};

} // namespace easel
