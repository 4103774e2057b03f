#pragma once

#include "toolkit/ImplCommon/Dialogs.h"
#include "toolkit/ImplCommon/Theme.h"

namespace NRDM::gallery {

/// How everything is to look.
struct Manner {
    bool dark = false;
    double scale = 0; ///< pixels a unit; 0 for the display's
};

/// The toolkit in a program of its own. There is one at a time.
class Gallery {
public:
    explicit Gallery(const Manner& manner);
    ~Gallery();
    Gallery(const Gallery&) = delete;
    Gallery& operator=(const Gallery&) = delete;

    [[nodiscard]] Dialogs& dialogs() noexcept { return dialogs_; }

private:
    static std::unique_ptr<Peers> makePeers(void* gallery);

    Manner manner_;
    Themes themes_;
    Dialogs dialogs_;
};

} // namespace NRDM::gallery
