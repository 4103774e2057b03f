#pragma once

#include "tests/easel/runtime/TestPlugin.h" // shows lists of texts
#include "toolkit/ImplCommon/CoADMDialog.h"
#include "toolkit/ImplCommon/Dialogs.h"
#include "toolkit/SuiteTables.h"

#include <doctest/doctest.h>

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace facetta::tests {

/// What dialogs ask of the screen, in a test: sizes are those of builds without one.
struct StagePeers final : NRDM::Peers {
    struct Item final : NRDM::ItemPeer {
        explicit Item(std::map<int, int>& changes) : changes_(changes) {}
        void changed(NRDM::Aspect aspects) override { ++changes_[static_cast<int>(aspects)]; }
        void focus() override {}
        void selectAll() override {}
        void invalidate() override {}
        void update() override {}
        void showTip(bool) override {}
        [[nodiscard]] void* window() const override { return nullptr; }
        std::map<int, int>& changes_;
    };
    struct Dialog final : NRDM::DialogPeer {
        Dialog(StagePeers& stage, NRDM::DialogEvents& events) : stage_(stage), events_(events) {}
        std::unique_ptr<NRDM::ItemPeer> createItem(const NRDM::ItemView&,
                                                   NRDM::ItemEvents&) override {
            return std::make_unique<Item>(stage_.changes);
        }
        void close() noexcept override { isOpen_ = false; }
        [[nodiscard]] bool isAlive() const override { return isOpen_; }
        void changed() override {}
        void invalidate() override {}
        void invalidate(const NRDM::Bounds&) override {}
        void update() override {}
        void activate() override {}
        void returnKeyboard() override { ++stage_.keyboardReturned; }
        void runModal() override {
            if (const auto act = stage_.user) act();
            if (isOpen_ && !ended_) events_.closeRequested();
        }
        bool endModal() override { return ended_ = true; }
        void startTimer(int timer, int) override { stage_.timers.push_back(timer); }
        void stopTimer(int timer) override { std::erase(stage_.timers, timer); }
        [[nodiscard]] double pixelsInUnit() const override { return stage_.pixelsInUnit; }
        [[nodiscard]] NRDM::Place screenCorner() const override { return {100, 50}; }
        void moveTo(NRDM::Place) override {}
        [[nodiscard]] void* window() const override { return nullptr; }
        StagePeers& stage_;
        NRDM::DialogEvents& events_;
        bool ended_ = false;
        bool isOpen_ = true;
    };

    std::unique_ptr<NRDM::DialogPeer> createDialog(const NRDM::DialogView&,
                                                   NRDM::DialogEvents& events) override {
        return std::make_unique<Dialog>(*this, events);
    }
    [[nodiscard]] NRDM::layout::ItemSize measure(const NRDM::ItemView& view,
                                                 NRDM::DialogKind where) const override {
        return metrics->measure(view, where);
    }
    [[nodiscard]] int heightAt(const NRDM::ItemView& view, NRDM::DialogKind where,
                               int width) const override {
        return metrics->heightAt(view, where, width);
    }
    void fail() noexcept override { ++failures; }
    void beep() override { ++beeps; }
    void themeChanged() override {}

    std::function<void()> user; ///< acts while a modal dialog runs
    std::vector<int> timers;
    std::map<int, int> changes; ///< how often peers were told of what
    int beeps = 0;
    int keyboardReturned = 0;
    int failures = 0;
    double pixelsInUnit = 1;
    NRDM::Themes themes;
    std::unique_ptr<NRDM::Peers> metrics =
        NRDM::systemPeers({.themes = themes, .plugin = nullptr, .fail = nullptr});
};

/// Notifications as they reached clients: "user 4", "user 4 in dialog", "cycle in dialog".
inline std::vector<std::string>& heard() {
    static std::vector<std::string> list;
    return list;
}
inline void hear(ADMNotifierRef notifier, const std::string& where) {
    const auto& functions = NRDM::kNotifierSuite;
    const std::pair<const char*, const char*> names[] = {
        {kADMUserChangedNotifier, "user"},
        {kADMIntermediateChangedNotifier, "moving"},
        {kADMBoundsChangedNotifier, "bounds"},
        {kADMCycleNotifier, "cycle"},
    };
    std::string text;
    for (const auto& [type, name] : names)
        if (functions.IsNotifierType(notifier, type)) text = name;
    if (ADMItemRef item = functions.GetItem(notifier))
        text += " " + std::to_string(NRDM::kItemSuite.GetID(item));
    heard().push_back(text + where);
}
/// Records, then does as the item does by itself.
inline void itemHears(ADMItemRef item, ADMNotifierRef notifier) {
    hear(notifier, "");
    NRDM::kItemSuite.DefaultNotify(item, notifier);
}
inline void dialogHears(ADMDialogRef dialog, ADMNotifierRef notifier) {
    hear(notifier, " in dialog");
    NRDM::kDialogSuite.DefaultNotify(dialog, notifier);
}
inline std::vector<std::string> takeHeard() { return std::exchange(heard(), {}); }

using Heard = std::vector<std::string>;

/// Dialogs without a host.
struct Stage {
    StagePeers* peers = nullptr; ///< from the first dialog on
    NRDM::Themes themes;
    NRDM::Dialogs dialogs{themes, makePeers, this};

    Stage() {
        heard().clear();
        static_cast<void>(dialogs.peers());
    }

    static std::unique_ptr<NRDM::Peers> makePeers(void* stage) {
        auto made = std::make_unique<StagePeers>();
        static_cast<Stage*>(stage)->peers = made.get();
        return made;
    }

    NRDM::CoADMDialog& dialog(ADMDialogStyle style = kADMModalDialogStyle) {
        return *dialogs.create({.name = "Stage", .style = style});
    }
    static NRDM::CoADMItem& add(NRDM::CoADMDialog& dialog, int id, const char* type) {
        NRDM::CoADMItem& item = *dialog.createItem(id, type, {0, 0, 10, 10}, nullptr, nullptr);
        item.procedures.notify = itemHears;
        return item;
    }
};

} // namespace facetta::tests
