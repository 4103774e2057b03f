#include "tests/pictures/PictureSymmetry.h"

#include "easel/document/Session.h"
#include "easel/paint/PaintDocument.h"
#include "easel/session/MirrorSession.h"
#include "easel/suites/Suites.h"

#include <doctest/doctest.h>

#include <filesystem>
#include <numbers>
#include <string>

// What a user sees: the example drawings, mirrored by the plug-in as built, painted, and looked at.

using facetta::tests::Mismatch;
using facetta::tests::Picture;
using facetta::tests::PictureAxes;

namespace {

struct Example {
    std::string file;
    std::string liveLayer; ///< Mirrored as a live layer of this name; empty: as a selection.
    bool filled;           ///< Has areas in which a seam would show.
    bool hairs;            ///< Has lines thinner than a pixel.
};

const Example kExamples[] = {
    {"rosette.svg", "", false, false},
    {"crossing.svg", "", true, false},
    {"layered.svg", "Ornament", true, false},
    {"mosaic.svg", "", false, true}, // smoothed edges of masks that meet leave a hair between them
    {"dense.svg", "", false, true},
};

struct Axes {
    int count;
    double degrees;
};

constexpr Axes kAxes[] = {{1, 90.0}, {2, 7.3},  {3, 0.0},   {5, 31.7},
                          {6, 15.0}, {12, 4.9}, {36, 2.35}, {72, 121.1}};

/// The share of pixels that may differ: hairs fall differently on the pixels, and there are more of
/// them the more axes there are. One berry missing from one of 24 sectors is six times the lesser
/// share.
constexpr double kShareOnFewAxes = 5e-5;
constexpr double kShareOfHairs = 2e-3;

/// On more axes than these, shapes are so slender along an axis that they look like seams.
constexpr int kFewAxes = 12;

/// Of 255, for what smoothing of edges does beyond the range of neighbouring pixels.
constexpr int kTolerance = 32;

Picture pixelsOf(const easel::paint::Picture& painted) {
    Picture picture{painted.width, painted.height, {}};
    for (std::size_t i = 0; i < painted.pixels.size(); i += 4)
        picture.pixels.push_back(static_cast<std::uint32_t>(painted.pixels[i]) |
                                 static_cast<std::uint32_t>(painted.pixels[i + 1]) << 8 |
                                 static_cast<std::uint32_t>(painted.pixels[i + 2]) << 16 |
                                 static_cast<std::uint32_t>(painted.pixels[i + 3]) << 24);
    return picture;
}

struct Pictures {
    Picture plain;
    Picture large; ///< A seam stays a hairline here, what is drawn grows.
};

Picture painted(double scale) {
    easel::paint::PaintOptions options;
    options.scale = scale;
    options.background = easel::paint::Colour{1, 1, 1, 1};
    return pixelsOf(easel::paint::paintDocument(easel::session().document(), options));
}

Pictures mirroredPictures(const Example& example, const Axes& axes) {
    easel::MirrorRequest request;
    request.axes = axes.count;
    request.angleDegrees = axes.degrees;
    request.layer = example.liveLayer;
    if (!example.liveLayer.empty()) request.mode = easel::MirrorMode::Layer;

    easel::MirrorSession session{easel::sessionWithSuites()};
    easel::addPluginLibrary(session.host, FACETTA_PLUGIN_FILE);
    session.prepare(request);
    session.start();
    session.open(std::filesystem::path("examples") / example.file);
    session.mirror(request);
    Pictures pictures{painted(2.0), example.filled ? painted(3.0) : Picture{}};
    const std::vector<std::string> complaints = session.finish();
    CHECK(complaints.empty());
    return pictures;
}

PictureAxes seenAxes(const Picture& picture, const Axes& axes) {
    return {axes.count, axes.degrees * std::numbers::pi / 180.0, picture.width / 2.0,
            picture.height / 2.0};
}

} // namespace

TEST_CASE("every example, mirrored, is its own image across every axis and by every turn") {
    for (const Example& example : kExamples) {
        for (const Axes& axes : kAxes) {
            INFO(example.file, " on ", axes.count, " axes at ", axes.degrees, " degrees");
            const Pictures pictures = mirroredPictures(example, axes);
            const Picture& plain = pictures.plain;
            const Picture& large = pictures.large;
            const Mismatch images = compareWithImages(plain, seenAxes(plain, axes), kTolerance);
            INFO("first wrong pixel at ", images.x, ", ", images.y);
            CHECK(images.compared > 200000);
            const bool hairs = axes.count > kFewAxes || example.hairs;
            const double share = hairs ? kShareOfHairs : kShareOnFewAxes;
            CHECK(static_cast<double>(images.wrong) <=
                  share * static_cast<double>(images.compared));
            if (!example.filled || axes.count > kFewAxes) continue;

            const Mismatch seams = findSeams(large, seenAxes(large, axes), kTolerance);
            INFO("first seam at ", seams.x, ", ", seams.y, " of ", large.width);
            CHECK(seams.compared > 100);
            CHECK(seams.wrong == 0);
        }
    }
}
