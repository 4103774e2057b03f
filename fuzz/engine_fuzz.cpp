/// Any bytes as a drawing, axes and a kind of host: mirroring ends with nothing left lent, a second
/// run makes no more objects, undo brings the former drawing back and redo the mirrored one.

#define DOCTEST_CONFIG_IMPLEMENT

#include "easel/document/ArtTree.h"
#include "easel/document/Attributes.h"
#include "easel/document/Layers.h"
#include "fuzz/Input.h"
#include "fuzz/Require.h"
#include "host/Error.h"
#include "symmetry/ArtSpace.h"
#include "tests/symmetry/EngineFixture.h"

#include <doctest/doctest.h>

namespace {

using namespace facetta;
using namespace facetta::fuzz;
using easel::Art;

constexpr int kMostObjects = 8;
constexpr int kMostDepth = 4;
/// More make a run slow, and the geometry's own targets have them.
constexpr std::int32_t kMostAxesHere = 8;

/// What may be said of an object: see EngineFixture.h.
constexpr AIArtUserAttr kAttributes[] = {kArtLocked, kArtHidden, kArtIsClipMask};

class Drawing {
public:
    Drawing(Input& input, tests::EngineFixture& fixture, Tier tier, Point middle)
        : input_(input), fixture_(fixture), tier_(tier), middle_(middle) {}

    void addTo(Art& parent, int depth) {
        while (!input_.empty() && objects_ < kMostObjects) {
            const std::uint8_t kind = input_.byte();
            if (kind % 8 == 0) return;
            ++objects_;
            Art& art = add(kind, parent, depth);
            flag(art, input_.byte());
        }
    }

private:
    Art& add(std::uint8_t kind, Art& parent, int depth) {
        easel::Document& document = fixture_.document();
        const easel::Position place = easel::atBottomOf(parent);
        const bool inCompound = parent.type() == kCompoundPathArt;
        if (kind % 8 < 5 || depth == kMostDepth || inCompound) return addPath(place);
        if (kind % 8 == 5) {
            constexpr ai::int16 kTypes[] = {kTextFrameArt, kSymbolArt, kRasterArt};
            return easel::createArt(document, kTypes[kind / 8 % std::size(kTypes)], place);
        }
        if (kind % 8 == 6 && parent.isLayer()) {
            Art& layer = easel::createLayer(document, "sublayer", place);
            addTo(layer, depth + 1);
            return layer;
        }
        const bool compound = kind / 8 % 3 == 0;
        Art& group = easel::createArt(document, compound ? kCompoundPathArt : kGroupArt, place);
        if (kind / 8 % 3 == 1) group.write().clipped = true;
        addTo(group, depth + 1);
        return group;
    }

    Art& addPath(easel::Position place) {
        const PathShape shape = input_.path(tier_, middle_);
        Art& path = easel::createArt(fixture_.document(), kPathArt, place);
        easel::ArtContent& content = path.write();
        content.closed = shape.closed;
        for (const PathSegment& each : shape.segments)
            content.segments.write().push_back(
                {narrow(each.anchor), narrow(each.in), narrow(each.out), each.corner});
        return path;
    }

    /// Most objects are nothing special.
    static void flag(Art& art, std::uint8_t flags) {
        if (flags < 160) return;
        if (flags < 176) art.dictionary().set(easel::internKey("FTMirroredv1"), easel::Value{1});
        if (flags >= 240 && art.type() == kPathArt) art.write().guide = true;
        art.write().attributes |= static_cast<std::uint32_t>(kAttributes[flags % 3]);
    }

    Input& input_;
    tests::EngineFixture& fixture_;
    Tier tier_;
    Point middle_;
    int objects_ = 0;
};

std::size_t objectsIn(const easel::Document& document) {
    const Art& root = document.root();
    std::size_t objects = 0;
    for (const Art* art = &root; art != nullptr; art = easel::nextInPreorder(*art, root))
        ++objects;
    return objects;
}

void requireSame(const std::string& wanted, const std::string& found, const char* what) {
    require(wanted == found, what, wanted + "--- is not\n" + found);
}

/// What the fixture checks by itself stops the program as well.
void listenToFixture() {
    static doctest::Context context;
    context.setAsDefaultForAssertsOutOfTestCases();
    context.setAssertHandler(
        [](const doctest::AssertData& data) { require(!data.m_failed, data.m_expr); });
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    [[maybe_unused]] static const bool listening = (listenToFixture(), true);
    Input input({data, size});
    easel::Switches switches;
    const auto turned = input.take<std::uint32_t>();
    for (std::size_t i = 0; i < easel::switchNames().size(); ++i)
        if ((turned >> i & 1) != 0) switches.*easel::switchNames()[i].value ^= true;
    tests::EngineFixture fixture(switches);
    const std::uint8_t way = input.byte();
    const Tier tier = (way & 1) != 0 ? Tier::FarOut : Tier::Artboard;
    fixture.removePoints = (way & 2) != 0;
    PageAxes axes = input.axes(tier);
    axes.axisCount = 1 + axes.axisCount % kMostAxesHere;
    fixture.setAxes(axes.axisCount, axes.angle, axes.origin);
    Drawing(input, fixture, tier, axes.origin).addTo(fixture.layer(), 0);
    const bool ofSelection = (way & 4) != 0;
    if (ofSelection) easel::selectAll(fixture.document());
    easel::UndoLog& history = fixture.document().undo();
    history.clear();

    const std::string before = fixture.text();
    try {
        ofSelection ? fixture.mirrorSelection() : fixture.attach();
    } catch (const ai::Error& error) {
        require(false, "a call of the host failed", std::to_string(error.code) + '\n' + before);
    }
    const std::size_t objects = objectsIn(fixture.document());
    if (!ofSelection) {
        fixture.regenerate();
        // Bit for bit it is the same but where a path leaves an axis by just a tolerance: there
        // rounding may have it joined otherwise. Beyond the canvas reals are too far apart for it.
        require(tier == Tier::FarOut || objectsIn(fixture.document()) <= objects,
                "a second run makes no more objects",
                before + "--- after two runs\n" + fixture.text());
    }
    const std::string last = fixture.text();
    while (history.undo()) {
    }
    requireSame(before, fixture.text(), "undo brings the former drawing back");
    while (history.redo()) {
    }
    requireSame(last, fixture.text(), "redo brings the mirrored one back");
    return 0;
}
