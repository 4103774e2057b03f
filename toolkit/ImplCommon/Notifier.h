#pragma once

#include "toolkit/ImplCommon/Peers.h"
#include "toolkit/suites/ADMTypes.h"

#include <string>

/// What notify and track procedures are told. Both live for the length of one call.
///
/// A change by the user goes this way:
/// 1. The item takes over the new value.
/// 2. The item's notify procedure is called; an item without one handles it by default.
/// 3. Default handling of an item: a radio button that went on switches the others of its group
/// off;
///    then the dialog's notify procedure is called, or the dialog handles it by default.
/// 4. Default handling of a dialog: the default and the cancel item end a modal dialog.

namespace NRDM {

class CoADMNotifier {
public:
    CoADMNotifier(CoADMDialog& dialog, CoADMItem* item, std::string type)
        : dialog_(dialog), item_(item), type_(std::move(type)) {}

    [[nodiscard]] CoADMDialog& dialog() const noexcept { return dialog_; }
    /// Null when it concerns the dialog itself.
    [[nodiscard]] CoADMItem* item() const noexcept { return item_; }
    [[nodiscard]] const std::string& type() const noexcept { return type_; }

    // Default handling runs once, however often a client's procedures ask for it: a dialog's
    // procedure that calls the item's would otherwise end in itself.
    bool handledByItem = false;
    bool handledByDialog = false;

private:
    CoADMDialog& dialog_;
    CoADMItem* item_;
    std::string type_;
};

class CoADMTracker {
public:
    explicit CoADMTracker(const TrackInput& input) : input_(input) {}

    [[nodiscard]] const TrackInput& input() const noexcept { return input_; }

private:
    TrackInput input_;
};

} // namespace NRDM
