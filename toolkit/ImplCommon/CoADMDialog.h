#pragma once

#include "toolkit/ImplCommon/BaseDialog.h"
#include "toolkit/ImplCommon/CoADMItem.h"
#include "toolkit/ImplCommon/NRDMPanelMenu.h"

#include <memory>
#include <vector>

namespace NRDM {

/// A delay of a dialog.
class CoADMTimer {
public:
    int number;
    int milliseconds;
    ADMActionMask abortMask; ///< of the events that cancel it
    ADMDialogTimerProc fired;
    ADMDialogTimerAbortProc aborted;
};

/// The object behind a dialog reference: a dialog or panel with its items. See `CoADMItem` for how
/// changes are told. An event in progress keeps the object, so that its handler may destroy it.
class CoADMDialog final : public BaseDialog,
                          public DialogEvents,
                          public std::enable_shared_from_this<CoADMDialog> {
public:
    CoADMDialog(Dialogs& dialogs, const DialogRequest& request);
    ~CoADMDialog() override = default;

    /// Makes the window, if the kind of dialog has one of its own, and those of the items.
    void open();
    /// Destroy procedure, items, timers, window; the object is of no more use.
    void close();
    [[nodiscard]] bool isClosed() const noexcept { return closed_; }
    /// From here on items hear of it when their bounds change.
    void made() noexcept { made_ = true; }
    [[nodiscard]] bool isMade() const noexcept { return made_ && !closed_; }

    /// Shows a modal dialog until it is ended, and answers with what.
    int run();

    /// Throws `NRDMParameterException` for a type that there is not and an id that is taken; id 0
    /// makes one up. Null when `init` refuses.
    CoADMItem* createItem(int id, std::string_view type, const Bounds& bounds, ADMItemInitProc init,
                          ADMUserData itemData);
    void destroyItem(CoADMItem& item);

    /// The item of that id, or with that role: first, last, default, cancel, the panel's menu. Null
    /// when there is none.
    [[nodiscard]] CoADMItem* item(int id) const;
    /// In their order, which is also that of Tab; the panel's menu is not among them.
    [[nodiscard]] const std::vector<std::shared_ptr<CoADMItem>>& items() const noexcept {
        return items_;
    }
    /// The one `distance` further in that order, or null.
    [[nodiscard]] CoADMItem* neighbour(const CoADMItem& item, int distance) const;

    void setDefaultId(int id);
    [[nodiscard]] int defaultId() const noexcept { return defaultId_; }
    void setCancelId(int id) { cancelId_ = id; }
    [[nodiscard]] int cancelId() const noexcept { return cancelId_; }

    /// Ends the modal loop after what is typed has been taken over, or dropped.
    bool end(int result, bool cancelling);

    void notify(const char* type);
    /// A notifier comes in, from an item or for the dialog itself.
    void receive(CoADMNotifier& notifier);
    /// What a dialog does by itself when it is told a change.
    void handle(CoADMNotifier& notifier);

    CoADMTimer* startTimer(int milliseconds, ADMActionMask abortMask, ADMDialogTimerProc fired,
                           ADMDialogTimerAbortProc aborted);
    void abortTimer(CoADMTimer& timer, ADMAction cause);

    // For the items.
    [[nodiscard]] CoADMItem* active() const noexcept { return active_; }
    void setActive(CoADMItem* item) noexcept { active_ = item; }
    [[nodiscard]] bool canFocus(const CoADMItem& item) const;
    /// Radio buttons with ids that follow each other, `item` among them.
    [[nodiscard]] std::vector<CoADMItem*> groupOf(const CoADMItem& item) const;
    /// Takes over what is typed elsewhere before `item` tells a change, or drops it when the item
    /// cancels. False when it was refused.
    bool finishTyping(const CoADMItem& item);
    /// Is it what a modal dialog is cancelled with?
    [[nodiscard]] bool isCancelling(const CoADMItem& item) const {
        return isRunning() && &item == pushButton(cancelId_);
    }
    void dropTyped();
    /// A label leads to the field beside it.
    void activateNeighbour(const CoADMItem& label);
    void noticeInput(ADMAction action);
    void menuChanged();

    // What the host tells of a panel.
    [[nodiscard]] bool liesIn(AIPanelRef panel) const { return panel_ && panel_->is(panel); }
    void panelStateChanged(int state);
    /// The host may have destroyed the window that the panel lies in and made another, which it
    /// tells nobody: everything is shown anew in that one. To be asked whenever the host calls.
    void followHost();
    /// The keyboard goes back to the document, once an item of a panel is done with it.
    void returnKeyboard();

    // DialogEvents
    bool key(DialogKey key, char32_t letter) override;
    void closeRequested() override;
    void resized(Extent size) override;
    void draw(CoADMDrawer& drawer) override;
    void timerFired(int timer) override;
    bool track(const TrackInput& input) override;

private:
    [[nodiscard]] int freeId() const;
    void openWindow();
    void closeWindow();
    void attachWindow(CoADMItem& item);
    void markDefault();
    [[nodiscard]] CoADMItem* pushButton(int id) const;
    [[nodiscard]] bool isTabStop(const CoADMItem& item) const;
    bool commitTyped();
    void focusFirst();
    bool moveFocus(int direction);
    bool moveInGroup(int direction);
    bool enter();
    bool escape();
    bool access(char32_t letter);

    std::vector<std::shared_ptr<CoADMItem>> items_;
    std::shared_ptr<CoADMItem> menuItem_; ///< of a panel
    std::unique_ptr<NRDMPanelMenu> panelMenu_;
    std::vector<std::unique_ptr<CoADMTimer>> timers_;
    CoADMItem* active_ = nullptr;
    int defaultId_ = 1;
    int cancelId_ = 2;
    int lastTimer_ = 0;
    int options_;
    bool made_ = false; ///< its init procedure has returned
    bool closed_ = false;
};

} // namespace NRDM
