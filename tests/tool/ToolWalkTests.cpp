#include "tests/Seed.h"
#include "tests/tool/Annotated.h"
#include "tests/tool/KeysHeld.h"

#include "easel/document/Attributes.h"
#include "symmetry/LayerAxesStore.h"

#include <functional>
#include <random>

using namespace facetta;
using namespace facetta::tests;
using platform::Key;

namespace {

/// A user who does anything at any time, the middle of a drag included.
class Walker : public Drawing {
public:
    explicit Walker(std::uint64_t walk) : Drawing(/*selected*/ true), random_(seed() + walk) {
        thePlugin->dialogs.editAxes = [](ToolSession&) { return DialogResult::Ok; };
    }

    ~Walker() { host.release({.at = {1, -1}}); } // no gesture outlives its documents

    void step() {
        struct Deed {
            const char* name;
            int weight;
            void (Walker::*act)();
        };
        static constexpr Deed kDeeds[] = {
            {"press", 10, &Walker::pressSomewhere},
            {"drag", 14, &Walker::dragSomewhere},
            {"release", 10, &Walker::releaseSomewhere},
            {"track", 3, &Walker::track},
            {"apply", 3, &Walker::apply},
            {"diameter key", 1, &Walker::diameterKey},
            {"tool away", 1, &Walker::toolAway},
            {"tool", 3, &Walker::takeTool},
            {"other document", 1, &Walker::otherDocument},
            {"close", 1, &Walker::closeDocument},
            {"layer", 2, &Walker::otherLayer},
            {"delete layer", 1, &Walker::deleteLayer},
            {"lock or hide", 2, &Walker::lockOrHide},
            {"draw", 1, &Walker::drawSomething},
            {"undo", 3, &Walker::undo},
            {"redo", 3, &Walker::redo},
        };
        int total = 0;
        for (const Deed& deed : kDeeds)
            total += deed.weight;
        int chosen = upTo(total);
        const Deed* deed = kDeeds;
        while ((chosen -= deed->weight) >= 0)
            ++deed;
        story += std::string(story.empty() ? "" : ", ") + deed->name;
        (this->*deed->act)();
    }

    /// Lets go of everything, unlocks all and takes the tool.
    void comeToRest() {
        releaseSomewhere();
        if (host.documents().empty()) openDocument();
        host.edit("Unlock", [](easel::Document& document) {
            for (easel::Art* layer = document.root().firstChild(); layer != nullptr;
                 layer = layer->next())
                easel::setUserAttributes(*layer, kArtLocked | kArtHidden, 0);
            document.note(&easel::DocumentChanges::layerOptions);
        });
        takeTool();
    }

    /// What the current layer carries; none without a document.
    [[nodiscard]] SymmetryAxes carried() {
        SymmetryAxes axes;
        if (host.documents().empty()) return axes;
        host.edit("Look", [&](easel::Document&) { LayerAxesStore::read(nullptr, axes); });
        return axes;
    }

    std::string story;
    bool buttonHeld = false; ///< notifications wait for the release

private:
    int upTo(int limit) { return std::uniform_int_distribution(0, limit - 1)(random_); }
    AIRealPoint place() {
        return {static_cast<AIReal>(40 + upTo(900)), static_cast<AIReal>(-40 - upTo(700))};
    }
    /// Mostly on something.
    AIRealPoint target() {
        if (axes().axisCount == 0 || host.documents().empty()) return place();
        switch (upTo(6)) {
        case 0:
            return narrow(origin());
        case 1:
            return onRay(upTo(2 * axes().axisCount), 150);
        case 2:
            return onRay(0.5, 150);
        case 3:
            return onRay(upTo(2 * axes().axisCount) + 0.3, 150);
        case 4:
            return onButton(static_cast<DialogItem>(1 + upTo(4)));
        default:
            return place();
        }
    }
    [[nodiscard]] bool hasWindow() const { return !host.documents().empty(); }

    void pressSomewhere() {
        const KeysHeld held(upTo(3) == 0 ? std::initializer_list<Key>{Key::Alt}
                                         : std::initializer_list<Key>{});
        if (!hasWindow()) return;
        host.press({.at = target()});
        buttonHeld = true; // with any tool: the host tells of nothing before the release
    }
    void dragSomewhere() {
        static constexpr Key kKeys[] = {Key::Escape, Key::Shift,   Key::Space,
                                        Key::U,      Key::Control, Key::RightBracket};
        const int key = upTo(4 * static_cast<int>(std::size(kKeys)));
        const bool isHeld = key < static_cast<int>(std::size(kKeys));
        const KeysHeld held(isHeld ? std::initializer_list<Key>{kKeys[key]}
                                   : std::initializer_list<Key>{});
        if (isHeld && kKeys[key] == Key::Escape) story += " with Escape";
        host.drag({.at = place()});
    }
    void releaseSomewhere() {
        host.release({.at = place()});
        buttonHeld = false;
    }
    void track() {
        if (hasWindow() && !tool().gesture) host.track({.at = target()});
    }
    void apply() {
        thePlugin->preferences.applyToSelection = upTo(3) == 0;
        host.editToolOptions();
    }
    void diameterKey() { upTo(2) == 0 ? host.increaseDiameter() : host.decreaseDiameter(); }
    void toolAway() { host.selectTool(nullptr); }
    void takeTool() { host.selectTool(thePlugin->toolHandle); }
    void otherDocument() {
        if (host.documents().size() < 2) return static_cast<void>(openDocument());
        host.activate(*host.documents()[static_cast<std::size_t>(upTo(2))]);
    }
    void closeDocument() {
        if (hasWindow() && upTo(2) == 0) host.close(easel::session().document());
    }
    void otherLayer() {
        if (!hasWindow()) return;
        easel::Art& front = *easel::session().document().root().firstChild();
        if (front.next() == nullptr)
            newLayer();
        else
            chooseLayer(upTo(2) == 0 ? front : *front.next());
    }
    void deleteLayer() {
        if (!hasWindow() || easel::session().document().root().firstChild()->next() == nullptr)
            return;
        host.edit("Delete Layer", [](easel::Document& document) {
            easel::deleteLayer(*document.state().currentLayer);
        });
    }
    void lockOrHide() {
        if (!hasWindow()) return;
        const AIArtUserAttr what = upTo(2) == 0 ? kArtLocked : kArtHidden;
        host.edit("Lock or Hide", [what](easel::Document& document) {
            easel::Art& layer = *document.state().currentLayer;
            easel::setUserAttributes(layer, what, layer.has(what) ? 0 : what);
            document.note(&easel::DocumentChanges::layerOptions);
        });
    }
    void drawSomething() {
        if (!hasWindow()) return;
        const AIRealPoint from = place();
        host.edit("Draw", [&](easel::Document& document) {
            drawLine(document, from, {from.h + 30, from.v + 20}, /*selected*/ false);
        });
    }
    void undo() {
        if (hasWindow()) host.undo();
    }
    void redo() {
        if (hasWindow()) host.redo();
    }

    std::mt19937_64 random_;
};

/// What is wrong with the state: it is to be one that the table names, and all its parts are to
/// agree with that and with the document. Empty: nothing.
std::string faultIn(Walker& session) {
    const ToolState& state = session.tool();
    const Meaning& meaning = meaningOf(state.activity);
    const bool needsTool = axesModified(state) || state.activity == Activity::FollowingCursor ||
                           state.activity == Activity::MakingAxes;
    const bool inGesture = state.activity == Activity::MakingAxes || repositionMode(state);
    const struct {
        bool holds;
        const char* otherwise;
    } rules[] = {
        {state.axes.provisional == meaning.provisional, "the record is pending or not"},
        {state.axes.onLayer == meaning.onLayer, "the record is a layer's or not"},
        {(layerEditOf(state) != nullptr) == layerEditInProgress(state), "an edit without end"},
        {static_cast<bool>(state.repositionArt) == repositionMode(state), "art kept or missing"},
        {!hasAxes(state) || state.axes.axisCount >= kFewestAxes, "no number of axes"},
        {std::isfinite(state.axes.angle), "no angle"},
        {!needsTool || state.toolSelected, "busy without the tool"},
        {state.activity != Activity::Away || !state.toolSelected, "away with the tool in hand"},
        {!inGesture || buttonIsDown(state), "a drag without a button"},
    };
    for (const auto& [holds, otherwise] : rules)
        if (!holds) return otherwise;
    // The tool hears of the document after the release; new axes have no layer.
    if (session.buttonHeld || state.activity == Activity::AxesPending) return {};
    const SymmetryAxes carried = session.carried();
    if (axesOnLayer(state) != (carried.axisCount != 0)) return "the layer says otherwise";
    const bool same = near(hardOriginOf(state.axes), hardOriginOf(carried)) &&
                      near(state.axes.angle, carried.angle) &&
                      state.axes.axisCount == carried.axisCount;
    return axesOnLayer(state) && !same ? "the layer has other axes" : "";
}

/// Presses without having moved the mouse before: it does what is seen on screen.
std::string faultInNextPress(Walker& session) {
    if (hasAxes(session.tool())) {
        if (ofKind(drawn(session), Kind::Polygon).empty()) return "axes that are not seen";
        const SymmetryAxes before = session.axes();
        session.dragFrom(session.onRay(1, 4000), session.onRay(1.25, 4000));
        const double turn = normaliseAngle(session.axes().angle - before.angle);
        const bool turned = near(turn, 0.25 * kPi / before.axisCount) &&
                            session.axes().axisCount == before.axisCount &&
                            axesModified(session.tool());
        return turned ? "" : "the axes have not turned";
    }
    session.click({321, -123});
    const bool made =
        near(session.origin(), {321, -123}) && session.tool().activity == Activity::AxesPending;
    return made ? "" : "no axes were made";
}

} // namespace

TEST_CASE("whatever the user does, and when, the tool knows what it is doing") {
    constexpr std::uint64_t kWalks = 100;
    constexpr int kSteps = 40;
    for (std::uint64_t walk = 0; walk < kWalks; ++walk) {
        Walker session(walk);
        for (int step = 0; step < kSteps; ++step) {
            session.step();
            INFO("walk ", walk, ": ", session.story);
            REQUIRE(faultIn(session) == "");
            for (const easel::SentMessage& sent : session.host.sent)
                FAIL(sent.selector, " (", sent.detail, ") answered ", easel::codeText(sent.result));
        }
        session.comeToRest();
        INFO("walk ", walk, ": ", session.story);
        REQUIRE(faultIn(session) == "");
        REQUIRE(faultInNextPress(session) == "");
    }
}
