#pragma once

#include <string_view>
#include <vector>

namespace NRDM {

/// What an XML document "prop.map" tells of a cursor. In our resources it reads
///
///     <prop.map>
///         <kHotSpot x="15" y="15"/>
///         <kPicture scale="1.5" id="16121"/>
///     </prop.map>
///
/// Reading never fails: what is missing, unreadable or out of range has its default.
struct CursorMap {
    struct Picture {
        double scale = 1; ///< of the display it is for, above 0
        int id = 0;       ///< of the PNG resource

        bool operator==(const Picture&) const = default;
    };

    // The pixel that counts, from the top left of the picture at scale 1.
    int hotX = kDefaultHotSpot;
    int hotY = kDefaultHotSpot;
    std::vector<Picture> pictures; ///< at most `kMostPictures`, in the document's order

    static constexpr int kDefaultHotSpot = 15;
    static constexpr int kLargestSide = 256; ///< of a cursor, in pixels
    static constexpr std::size_t kMostPictures = 16;
    static constexpr std::size_t kMostBytes = std::size_t{64} * 1024; ///< of a document
};

[[nodiscard]] CursorMap readCursorMap(std::string_view document);

/// The picture to show on a display of `scale`: the smallest that need not be enlarged, else the
/// largest there is. Without pictures it is `plain`, made for scale 1.
[[nodiscard]] CursorMap::Picture pictureFor(const CursorMap& map, double scale, int plain);

} // namespace NRDM
