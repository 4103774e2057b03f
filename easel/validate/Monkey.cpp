#include "easel/document/ArtTree.h"
#include "easel/document/Attributes.h"
#include "easel/document/Dump.h"
#include "easel/script/System.h"
#include "easel/session/Inventory.h"
#include "easel/svg/SvgFile.h"
#include "easel/validate/Checks.h"
#include "easel/validate/Drawings.h"
#include "easel/validate/Sitting.h"
#include "easel/validate/SymmetryOfLayer.h"

#include <algorithm>
#include <cstring>
#include <map>
#include <set>

/// Acts in any order, with undo, redo and changes of the host's own in between, as nobody would
/// write them down.

namespace easel::validate {
namespace {

constexpr int kActsOfSession = 40;

/// Each mirroring multiplies a drawing, by up to 144. Nobody works on in what has become of it
/// then.
constexpr std::ptrdiff_t kMostObjects = 3000;

bool isTooLarge(const Document& document) {
    const Art& root = document.root();
    std::ptrdiff_t objects = 0;
    for (const Art* art = root.firstChild(); art != nullptr; art = nextInPreorder(*art, root))
        if (++objects > kMostObjects) return true;
    return false;
}

/// What nobody but the host does, between acts.
constexpr const char* kBetween[] = {
    "undo",
    "undo 2",
    "redo",
    "redo 2",
    "select all",
    "select none",
    "nudge 2 -3",
    "wait 1500",
    "layer choose Ornament",
    "layer add Sketch",
    "layer lock Ornament",
    "layer unlock Ornament",
    "layer show Ornament",
    "tool \"Facetta Tool\"",
    "tool \"Adobe Select Tool\"",
    "panel show",
    "reload",
    "zoom 1",
};

/// Copies are only where axes are, nowhere else does anything carry their tag, and what is tagged
/// as a guide along axes is a guide.
void judgeTags(Trials& trials, const Document& document) {
    const Art& root = document.root();
    for (const Art* layer = root.firstChild(); layer != nullptr; layer = layer->next()) {
        const bool hasAxes = !layer->isLayer() || axesOn(*layer).has_value();
        for (const Art* art = nextInPreorder(*layer, *layer); art != nullptr;
             art = nextInPreorder(*art, *layer)) {
            if (!hasAxes && isCopy(*art))
                return trials.fail("a copy lies on the layer \"" + layer->details().layer.title +
                                   "\", which has no axes");
            if (isMarkedAsAxisGuide(*art) && !art->content().guide)
                return trials.fail("what is no guide is tagged as one along axes");
        }
    }
}

/// The live layers that wait for their next change. What is drawn while a layer's axes are edited
/// is not mirrored when the edit is cancelled, nor when the art is then moved with its axes, copies
/// and all: the layer is given a stamp as it is.
class WaitingLayers {
public:
    /// Whether `layer` waits; to be asked of each after each act. Undo and redo bring its stamps
    /// back.
    [[nodiscard]] bool waits(const Art& layer, ai::int32 stamp, bool isNewest,
                             const std::string& undoText) {
        const ai::int32 before = std::exchange(last_[&layer], stamp);
        const bool cancelled = isNewest && undoText == "Undo Cancel Edit Symmetry Axes";
        const bool moved = undoText == "Undo Reposition Symmetry Axes";
        if (cancelled || (moved && waiting_.contains({&layer, before})))
            waiting_.emplace(&layer, stamp);
        return waiting_.contains({&layer, stamp});
    }

private:
    std::set<std::pair<const Art*, ai::int32>> waiting_; ///< By the stamps they have then.
    std::map<const Art*, ai::int32> last_;
};

/// The copies of each layer that mirrors by itself fit its art. While the pen is in hand a path may
/// be under way, for which the layer waits; and what nobody can edit is left alone.
void judgeLayers(Trials& trials, const Document& document, const Host& host,
                 WaitingLayers& waiting) {
    if (host.tools.currentNumber() == Tools::kPenTool) return;
    constexpr std::size_t kMostAnchors = 200;
    std::vector<std::pair<const Art*, ai::int32>> live;
    ai::int32 newest = 0;
    const Art& root = document.root();
    for (const Art* art = root.firstChild(); art != nullptr; art = art->next()) {
        const std::optional<LayerAxes> axes = art->isLayer() ? axesOn(*art) : std::nullopt;
        if (!axes || !axes->automatic || !isEditable(*art)) continue;
        live.emplace_back(art, axes->stamp);
        newest = std::max(newest, axes->stamp);
    }
    for (const auto& [layer, stamp] : live) {
        if (waiting.waits(*layer, stamp, stamp == newest, host.undoText())) continue;
        for (const std::string& fault : {strayCopies(*layer), asymmetryOf(*layer, kMostAnchors)})
            if (!fault.empty()) trials.fail('"' + layer->details().layer.title + "\": " + fault);
    }
}

/// Null when it has been closed.
Document* documentOf(const Host& host, AIDocumentHandle handle) {
    for (const std::unique_ptr<Document>& each : host.documents())
        if (each->handle() == handle) return each.get();
    return nullptr;
}

/// All back, and all done again.
void judgeHistory(Trials& trials, Sitting& sitting, Document& document, const std::string& opened) {
    Host& host = sitting.player().host();
    host.activate(document);
    while (host.redo()) { // what the last acts have taken back
    }
    const std::string end = sitting.artOf(document);
    while (host.undo()) {
    }
    if (const std::string found = sitting.artOf(document); found != opened)
        trials.fail("undo of all does not lead back: " + difference(opened, found));
    while (host.redo()) {
    }
    if (const std::string found = sitting.artOf(document); found != end)
        trials.fail("redo of all does not lead to the end again: " + difference(end, found));
}

/// As it was saved it is opened, and nothing is done to it by that.
void judgeSaved(Session& session, Trials& trials, Sitting& sitting) {
    const std::string text = svg::svgText(session.document());
    Document& again =
        sitting.player().host().open(std::move(svg::readSvgText(session, text, "saved").document));
    const std::string read = sitting.artOf(again);
    sitting.perform("tool \"Adobe Select Tool\"\ntool \"Facetta Tool\"\nmove 250,260\nwait 500");
    if (const std::string found = sitting.artOf(again); found != read)
        trials.fail("a saved drawing changes by being opened: " + difference(read, found));
}

struct Plan {
    const Drawing& drawing;
    std::vector<const char*> acts; ///< The lines of each.
};

Plan planned(Random random) {
    // Without the drawing whose entries have no meaning from the start.
    Plan plan{drawings()[random() % (drawings().size() - 1)], {}};
    for (int i = 0; i < kActsOfSession; ++i) {
        const auto kind = random() % 9;
        if (kind < 3)
            plan.acts.push_back(kBetween[random() % std::size(kBetween)]);
        else if (kind < 5)
            plan.acts.push_back(linesTo(static_cast<Stage>(1 + random() % 4)));
        else
            plan.acts.push_back(acts()[random() % acts().size()].lines);
    }
    return plan;
}

void play(Session& session, Trials& trials, const Plan& plan) {
    Sitting sitting(session, trials.options().plugin);
    toTheEnd(trials, sitting, [&] {
        sitting.perform(commonSettings());
        sitting.open(plan.drawing.text());
        const AIDocumentHandle first = session.document().handle();
        const std::string opened = sitting.artOf(session.document());
        WaitingLayers waiting;
        for (const char* const lines : plan.acts) {
            if (session.current == nullptr) sitting.perform("new 400 400");
            sitting.attempt(lines);
            for (const SPErr code : sitting.takeReactions().codes)
                trials.fail('"' + std::string(lines) + "\": a message was answered with " +
                            codeText(code));
            if (const std::size_t open = sitting.player().host().contexts.depth(); open != 0)
                throw SessionError('"' + std::string(lines) + "\" leaves a context open");
            for (const auto& each : sitting.player().host().documents())
                judgeTags(trials, *each);
            if (session.current == nullptr) continue;
            judgeLayers(trials, session.document(), sitting.player().host(), waiting);
            if (isTooLarge(session.document())) break;
        }
        sitting.attempt("release");
        if (Document* const document = documentOf(sitting.player().host(), first)) {
            judgeHistory(trials, sitting, *document, opened);
            judgeSaved(session, trials, sitting);
        }
        sitting.perform(lifeOfAxes());
    });
}

} // namespace

void checkMonkey(Session& session, Trials& trials) {
    const auto sessions = trials.byStrictness<std::uint64_t>(
        onWindows() ? std::array<std::uint64_t, 5>{2, 5, 15, 200, 1000}
                    : std::array<std::uint64_t, 5>{20, 100, 1000, 10'000, 100'000});
    for (std::uint64_t number = 1; number <= sessions; ++number) {
        const Plan plan = planned(trials.random(number));
        if (!trials.begin(number, std::to_string(kActsOfSession) + " acts at random on " +
                                      plan.drawing.name))
            continue;
        for (const char* const lines : plan.acts)
            trials.explain(lines);
        play(session, trials, plan);
    }
}

} // namespace easel::validate
