#include "easel/document/Attributes.h"
#include "easel/document/Layers.h"
#include "easel/document/Session.h"
#include "symmetry/ArtSpace.h"
#include "symmetry/LayerAxesStore.h"
#include "symmetry/LiveLayers.h"
#include "tests/Seed.h"
#include "tests/symmetry/EngineFixture.h"

#include <doctest/doctest.h>

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <random>
#include <set>
#include <string>
#include <vector>

/// After any edit a live layer holds what a run over all of it makes of the same sources, bit for
/// bit, though most copies have stayed. FACETTA_EDITS sets how many edits are tried.

using namespace facetta;
using easel::Art;
using facetta::tests::EngineFixture;

namespace {

constexpr int kEdits = 300;
constexpr int kEditsPerDocument = 12;

int editsWanted() {
    const char* text = std::getenv("FACETTA_EDITS");
    return text == nullptr ? kEdits : std::atoi(text);
}

constexpr bool easel::Switches::*kSwitches[] = {
    &easel::Switches::stampsCoverDescendants, &easel::Switches::undoRestoresStamps,
    &easel::Switches::lockingStamps,          &easel::Switches::movingStamps,
    &easel::Switches::duplicatesKeepLocks,    &easel::Switches::duplicatesKeepSelection,
    &easel::Switches::layerSetHasOwnGroup,    &easel::Switches::sublayerGroupHasParent,
    &easel::Switches::lockedMembersGoAlong,   &easel::Switches::disposeRefusesLocked,
    &easel::Switches::silentFollowsStep,      &easel::Switches::countIs64Bits,
};

/// A user at random in a document with two live layers and one that is not.
class Hand {
public:
    explicit Hand(std::uint64_t seed, int number) : random_(seed), fixture_(switchesFor(number)) {
        build();
    }

    /// One edit, or now and then several before the layers are looked after; then the comparison.
    void edit() {
        const int kind = integer(0, 23);
        if (kind == 0) return travel(&easel::UndoLog::undo, "undo");
        if (kind == 1) return travel(&easel::UndoLog::redo, "redo");
        if (kind == 2) return reopen();
        const int edits = integer(0, 5) == 0 ? 2 : 1;
        // What no stamp tells is put right with the next edit that has one: here is one.
        bool nudge = false;
        fixture_.step([&] {
            for (int i = 0; i < edits; ++i)
                change();
            nudge = !easel::session().switches.lockingStamps || unstamped_ || coin();
            for (Art* layer : topLayers())
                if (nudge) layer->touch();
        });
        follow(nudge);
    }

    [[nodiscard]] const std::string& story() const { return story_; }

private:
    using Change = void (Hand::*)();

    easel::Switches switchesFor(int number) {
        easel::Switches switches;
        constexpr int kCount = std::size(kSwitches);
        for (int i = 0; i < kCount; ++i)
            if (i == number % kCount || (number >= kCount && coin()))
                switches.*kSwitches[i] = !(switches.*kSwitches[i]);
        return switches;
    }

    int integer(int low, int high) {
        return std::uniform_int_distribution<int>(low, high)(random_);
    }
    bool coin() { return integer(0, 1) == 0; }
    double real(double low, double high) {
        return std::uniform_real_distribution<double>(low, high)(random_);
    }
    void tell(const std::string& what) { story_ += what + "; "; }

    // The document.

    void build() {
        static constexpr const char* kDrawings[] = {
            "a b g(d e) f", "c(a b) d l(e f) h", "k(!a b t) d",    "g(a g(b d) #e) ~f h",
            "t d s e",      "-a b #d e g(f)",    "a l(b l2(d)) e", "p(a) b k(!c(d e) f)"};
        for (int i = 0; i < 3; ++i) {
            Art* layer = &fixture_.layer();
            if (i > 0)
                fixture_.step([&] {
                    layer = &easel::createLayer(fixture_.document(), "next",
                                                easel::atBottomOf(fixture_.document().root()));
                });
            fixture_.build(*layer, kDrawings[integer(0, std::size(kDrawings) - 1)]);
            fixture_.step([&] {
                for (int paths = integer(0, 3); paths > 0; --paths)
                    addPath({layer, layer->firstChild()});
            });
            if (i == 2) break;
            fixture_.step([&] { easel::setCurrentLayer(fixture_.document(), *layer); });
            // The same axes for both at times: then copies of one would fit on the other.
            if (i == 0 || coin())
                fixture_.setAxes(integer(1, 4), coin() ? 0.0 : real(-3, 3), {real(0, 80), 60});
            fixture_.attach();
        }
        fixture_.document().undo().clear();
        seen_.insert(fixture_.text());
    }

    void addPath(easel::Position position) {
        const Point centre{real(-100, 200), real(-60, 140)};
        std::vector<Point> points;
        for (int i = integer(2, 5); i > 0; --i)
            points.push_back({centre.x + real(-60, 60), centre.y + real(-60, 60)});
        Art& path = fixture_.addPath(*position.parent, points, coin());
        if (position.behind != &path) easel::moveArt(path, position);
    }

    // What the user takes hold of.

    std::vector<Art*> all(const std::function<bool(Art&)>& wanted) {
        std::vector<Art*> found;
        Art& root = const_cast<Art&>(fixture_.document().root());
        for (Art* art = &root; art != nullptr; art = easel::nextInPreorder(*art, root)) {
            const bool isLayer = art == &root || art->parent() == &root;
            if (!isLayer && !inResult(*art) && wanted(*art)) found.push_back(art);
        }
        return found;
    }
    static bool inResult(const Art& art) {
        for (const Art* up = &art; up != nullptr; up = up->parent())
            if (easel::isResultGroup(*up)) return true;
        return false;
    }
    static bool isPart(const Art& art) { return art.parent()->type() == kPluginArt; }
    static bool isPlain(const Art& art) { return !isPart(art) && !art.isLayer(); }
    Art* any(const std::function<bool(Art&)>& wanted) {
        const std::vector<Art*> found = all(wanted);
        return found.empty() ? nullptr : found[integer(0, static_cast<int>(found.size()) - 1)];
    }
    Art* anyPath() {
        return any([](Art& art) { return art.type() == kPathArt && !art.segments().empty(); });
    }
    Art* anyObject() { return any(isPlain); }
    Art* anySource() {
        return any([](Art& art) { return isPlain(art) && !art.has(kArtLocked); });
    }

    /// Between any two objects of a layer or group that is not inside `moved`.
    easel::Position anyPlace(const Art* moved) {
        Art& root = const_cast<Art&>(fixture_.document().root());
        std::vector<Art*> groups;
        for (Art* art = root.firstChild(); art != nullptr; art = easel::nextInPreorder(*art, root))
            if (art->type() == kGroupArt && !inResult(*art) &&
                (moved == nullptr || !easel::isInside(*art, *moved)))
                groups.push_back(art);
        Art* group = groups[integer(0, static_cast<int>(groups.size()) - 1)];
        std::vector<Art*> behind{nullptr};
        for (Art* art = group->firstChild(); art != nullptr; art = art->next())
            if (art != moved) behind.push_back(art);
        return {group, behind[integer(0, static_cast<int>(behind.size()) - 1)]};
    }

    // What the user does with it.

    void change() {
        static constexpr Change kChanges[] = {
            &Hand::move,          &Hand::reshape,   &Hand::restyle, &Hand::add,   &Hand::remove,
            &Hand::removeSome,    &Hand::duplicate, &Hand::reorder, &Hand::swap,  &Hand::group,
            &Hand::ungroup,       &Hand::lock,      &Hand::hide,    &Hand::spoil, &Hand::unlockOnly,
            &Hand::reorderNearby, &Hand::makeGuide, &Hand::zoom};
        (this->*kChanges[integer(0, std::size(kChanges) - 1)])();
    }

    void move() {
        Art* path = anyPath();
        if (path == nullptr) return;
        tell("move");
        const auto by = static_cast<AIReal>(real(-40, 40));
        for (AIPathSegment& segment : path->write().segments.write())
            for (AIRealPoint* point : {&segment.p, &segment.in, &segment.out})
                point->h += by;
    }
    void reshape() {
        Art* path = anyPath();
        if (path == nullptr) return;
        tell("reshape");
        path->write().segments.write().front().p.v += static_cast<AIReal>(real(-30, 30));
    }
    void restyle() {
        Art* path = anyPath();
        if (path == nullptr) return;
        tell("restyle");
        Art& carrier = easel::styleCarrier(*path);
        carrier.write().style.write().path.stroke.width = static_cast<AIReal>(integer(1, 9));
    }
    void add() {
        tell("add");
        addPath(anyPlace(nullptr));
    }
    void remove() {
        Art* art = anySource();
        if (art == nullptr) return;
        tell("remove");
        easel::disposeArt(*art);
    }
    /// Neighbours, copies among them.
    void removeSome() {
        Art* art = anyObject();
        if (art == nullptr) return;
        tell("remove some");
        for (int count = integer(1, 4); count > 0 && art != nullptr; --count) {
            Art* behind = art->next();
            easel::disposeArt(*art);
            art = behind;
        }
    }
    void duplicate() {
        Art* art = anyObject();
        if (art == nullptr) return;
        tell("duplicate");
        Art& copy = easel::duplicateArt(*art, coin() ? easel::behind(*art) : anyPlace(art));
        if (coin() && copy.type() == kPathArt)
            copy.write().style.write().path.stroke.width = static_cast<AIReal>(integer(1, 9));
    }
    void reorder() {
        Art* art = coin() ? anyObject() : anySource();
        if (art == nullptr) return;
        tell("reorder");
        easel::moveArt(*art, anyPlace(art));
    }
    /// Just behind another source, where that one's copies begin.
    void reorderNearby() {
        Art* art = anySource();
        Art* other = anySource();
        if (art == nullptr || other == nullptr || easel::isInside(*other, *art)) return;
        tell("reorder nearby");
        easel::moveArt(*art, easel::behind(*other));
    }
    void swap() {
        Art* art = anyObject();
        if (art == nullptr || art->next() == nullptr) return;
        tell("swap");
        easel::moveArt(*art->next(), easel::inFrontOf(*art));
    }
    void group() {
        Art* art = anySource();
        if (art == nullptr || art->parent()->type() != kGroupArt) return;
        tell("group");
        Art& group = easel::createArt(fixture_.document(), kGroupArt, easel::inFrontOf(*art));
        for (int count = integer(1, 3); count > 0 && art != nullptr; --count) {
            Art* behind = art->next();
            while (behind != nullptr && (behind->has(kArtLocked) || behind->isLayer()))
                behind = behind->next();
            easel::moveArt(*art, easel::atBottomOf(group));
            art = behind;
        }
    }
    void ungroup() {
        Art* group = any([](Art& art) { return art.type() == kGroupArt && isPlain(art); });
        if (group == nullptr || group->parent()->type() != kGroupArt) return;
        tell("ungroup");
        while (group->firstChild() != nullptr)
            easel::moveArt(*group->firstChild(), easel::inFrontOf(*group));
        easel::disposeArt(*group);
    }
    void toggle(AIArtUserAttr attribute) {
        Art* art = any([](Art& each) { return !isPart(each); });
        if (art == nullptr) return;
        tell((art->has(attribute) ? "un" : "") +
             std::string(attribute == kArtLocked ? "lock" : "hide"));
        easel::session().allowAllChanges = true;
        easel::setUserAttributes(*art, attribute, art->has(attribute) ? 0 : attribute);
    }
    void lock() { toggle(kArtLocked); }
    void hide() { toggle(kArtHidden); }
    /// A copy unlocked, and at times spoiled, thrown away or locked again.
    void unlockOnly() { unlock(); }
    void spoil() {
        Art* copy = unlock();
        if (copy == nullptr) return;
        tell("spoil");
        if (coin() && copy->type() == kPathArt && !copy->segments().empty())
            copy->write().segments.write().back().p.h += 3;
        else if (coin())
            return easel::disposeArt(*copy);
        if (coin()) easel::setUserAttributes(*copy, kArtLocked, kArtLocked);
    }
    Art* unlock() {
        Art* copy = any([](Art& art) { return isPlain(art) && art.has(kArtLocked); });
        if (copy == nullptr) return nullptr;
        tell("unlock");
        easel::session().allowAllChanges = true;
        easel::setUserAttributes(*copy, kArtLocked, 0);
        return copy;
    }
    void makeGuide() {
        Art* path = anyPath();
        if (path == nullptr) return;
        tell("guide");
        path->write().guide ^= true;
    }
    void zoom() {
        tell("zoom");
        unstamped_ = true; // a full run might draw other ends onto the axes
        EngineFixture::shellSide().zoom = static_cast<float>(real(0.3, 3));
    }

    void travel(bool (easel::UndoLog::*there)(), const char* name) {
        if (!(fixture_.document().undo().*there)()) return;
        tell(name);
        CHECK(regenerate() == 0);
        CHECK(seen_.contains(fixture_.text()));
    }

    /// Saved and opened again, at times in another run of the host.
    void reopen() {
        tell("reopen");
        fixture_.reopen(coin() ? EngineFixture::Host::StartsAgain : EngineFixture::Host::Stays);
        unstamped_ = true;
        seen_.clear();
        const std::string before = fixture_.text();
        CHECK(regenerate() == 0);
        CHECK(fixture_.text() == before);
        seen_.insert(before);
    }

    // What the plug-in does about it.

    int regenerate() {
        int layers = 0;
        fixture_.step([&] {
            fixture_.document().undo().setKind(kSilentUndoContext);
            layers = regenerateChangedLayers(fixture_.environment()).layers;
        });
        return layers;
    }

    /// The document with all copies of live layers thrown away and made anew; it stays as it is.
    std::string afterFullRuns() {
        std::string text;
        const bool restores = easel::session().switches.undoRestoresStamps;
        easel::session().switches.undoRestoresStamps = true;
        fixture_.step([&] {
            for (Art* layer : topLayers())
                if (isLive(*layer))
                    MirrorEngine{fixture_.environment()}.run(false, false, false,
                                                             easel::layerHandle(layer));
            text = fixture_.text();
            fixture_.document().undo().revert();
        });
        easel::session().switches.undoRestoresStamps = restores;
        return text;
    }

    std::vector<Art*> topLayers() {
        std::vector<Art*> layers;
        for (Art* layer = &fixture_.layer(); layer != nullptr; layer = layer->next())
            layers.push_back(layer);
        return layers;
    }
    static bool isLive(Art& layer) { return LayerAxesStore::hasAxes(easel::layerHandle(&layer)); }

    void follow(bool allLayers) {
        const std::string wanted = afterFullRuns();
        const int layers = regenerate();
        const std::string found = fixture_.text();
        seen_.insert(found);
        if (allLayers) CHECK(layers == 2);
        const bool same = found == wanted;
        CHECK(same);
        story_ += '\n';
    }

    std::mt19937_64 random_;
    std::string story_;
    std::set<std::string> seen_;
    bool unstamped_ = false; ///< Something that no stamp tells may make a layer come out otherwise.
    EngineFixture fixture_;
};

} // namespace

TEST_CASE("after an edit a live layer is as if all its copies had been made anew") {
    const int documents = editsWanted() / kEditsPerDocument;
    for (int number = 0; number < documents; ++number) {
        INFO("document ", number);
        Hand hand{facetta::tests::seed() + static_cast<std::uint64_t>(number), number};
        INFO(hand.story());
        for (int edits = 0; edits < kEditsPerDocument; ++edits)
            hand.edit();
    }
}

TEST_CASE("a copy of another kind than the object in front of it is made anew") {
    EngineFixture fixture;
    fixture.build(fixture.layer(), "t s");
    fixture.setAxes(1, 0.5, {40, 60});
    fixture.attach();
    fixture.step([&] {
        Art* const copyOfText = fixture.layer().firstChild()->next();
        Art* const symbol = copyOfText->next();
        easel::disposeArt(*copyOfText);
        easel::disposeArt(*symbol);
        fixture.layer().touch();
    });
    REQUIRE(fixture.notationOf(fixture.layer()) == "t s'");
    fixture.step([&] { regenerateChangedLayers(fixture.environment()); });
    CHECK(fixture.notationOf(fixture.layer()) == "t t'");
}
