#pragma once

#include "toolkit/gallery/Page.h"

#include <fstream>
#include <string>

namespace NRDM::gallery {

/// A file for whoever uses the gallery as a person does but cannot see it: where its items are and
/// what they tell. A line each, its words parted by tabs:
///
///     item ID LEFT TOP RIGHT BOTTOM TYPE TEXT    of a page that is shown; pixels of the screen
///     shown                                      after the items of all pages
///     user ID WHAT                               a change is done
///     moving ID WHAT                             a change is in progress
///     ended ID                                   a modal page was ended, with that number
///
/// WHAT is the text of a field, the chosen entry of a list, a slider's value, "on" or "off" of a
/// box and "-" of a button.
class Journal {
public:
    /// Throws `std::runtime_error` when the file cannot be written.
    explicit Journal(const std::string& file);

    /// From now on what the items of `page` tell is written, and where they are once messages are
    /// served. The journal lasts longer than the page.
    void watch(const Page& page);

    void write(const std::string& line);

private:
    static void heard(ADMItemRef item, ADMNotifierRef notifier);
    static ADMBoolean isShown(ADMDialogRef dialog, ADMTimerRef timer);
    void writeItems(ADMDialogRef dialog);

    std::ofstream stream_;
    int hidden_ = 0; ///< pages that are watched and have not been written yet
};

} // namespace NRDM::gallery
