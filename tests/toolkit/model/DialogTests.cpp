#include "tests/toolkit/model/Stage.h"

#include "toolkit/ImplCommon/Exceptions.h"

#include <optional>

using namespace facetta::tests;
using namespace NRDM;

namespace {

/// A modal dialog with OK, Cancel and a field.
struct Form {
    Stage stage;
    CoADMDialog& dialog = stage.dialog();
    CoADMItem& field = Stage::add(dialog, 4, kADMSpinEditType);
    CoADMItem& cancel = Stage::add(dialog, 2, kADMTextPushButtonType);
    CoADMItem& ok = Stage::add(dialog, 1, kADMTextPushButtonType);

    Form() {
        dialog.procedures.notify = dialogHears;
        field.setLowest(1);
        field.setHighest(72);
        field.setValue(10);
    }
    int run(std::function<void()> user) {
        stage.peers->user = std::move(user);
        return dialog.run();
    }
};

} // namespace

TEST_CASE("a dialog ends with the button that was pressed, and tells each press once") {
    struct Row {
        const char* what;
        std::function<void(Form&)> act;
        int result;
        Heard heard;
    };
    const Row rows[] = {
        {"OK", [](Form& form) { form.ok.clicked(); }, 1, {"user 1", "user 1 in dialog"}},
        {"Enter",
         [](Form& form) { form.dialog.key(DialogKey::Enter, 0); },
         1,
         {"user 1", "user 1 in dialog"}},
        {"Escape",
         [](Form& form) { form.dialog.key(DialogKey::Escape, 0); },
         2,
         {"user 2", "user 2 in dialog"}},
        {"the close box",
         [](Form& form) { form.dialog.closeRequested(); },
         2,
         {"user 2", "user 2 in dialog"}},
        {"Enter takes over what is typed first",
         [](Form& form) {
             form.field.typed("12");
             form.dialog.key(DialogKey::Enter, 0);
         },
         1,
         {"moving 4", "moving 4 in dialog", "user 4", "user 4 in dialog", "user 1",
          "user 1 in dialog"}},
        {"a number out of range keeps Enter from the button; Escape drops it",
         [](Form& form) {
             form.field.typed("73");
             form.dialog.key(DialogKey::Enter, 0);
             CHECK(form.dialog.isRunning());
             form.field.typed("99");
             form.dialog.key(DialogKey::Escape, 0);
         },
         2,
         {"moving 4", "moving 4 in dialog", "moving 4", "moving 4 in dialog", "user 2",
          "user 2 in dialog"}},
        {"the last result counts",
         [](Form& form) {
             form.dialog.end(5, true);
             form.dialog.end(6, true);
         },
         6,
         {}},
    };
    for (const auto& row : rows) {
        INFO(std::string(row.what));
        Form form;
        CHECK(form.run([&] { row.act(form); }) == row.result);
        CHECK(takeHeard() == row.heard);
        CHECK_FALSE(form.dialog.isRunning());
    }
}

TEST_CASE("a field takes over what is typed, or brings its last number back") {
    struct Row {
        std::string typed;
        float value;
        std::string text;
        bool taken;
        Heard heard;
    };
    const Heard moved = {"moving 4", "user 4"};
    const Heard typing = {"moving 4"};
    const Row rows[] = {
        {"72", 72, "72", true, moved},    {"1", 1, "1", true, moved},
        {"0", 10, "10", false, typing},   {"73", 10, "10", false, typing},
        {"abc", 10, "10", false, typing}, {"", 10, "10", false, typing},
        {"10", 10, "10", true, {}},       {"10.2", 10, "10", true, typing},
        {"5+6", 11, "11", true, moved},   {"150%", 15, "15", true, moved},
    };
    for (const auto& row : rows) {
        INFO(row.typed);
        Form form;
        form.dialog.procedures.notify = nullptr;
        form.field.typed(row.typed);
        CHECK(form.field.commit() == row.taken);
        CHECK(form.field.value() == row.value);
        CHECK(form.field.text() == row.text);
        CHECK(takeHeard() == row.heard);
        CHECK(form.stage.peers->beeps == (row.taken ? 0 : 1));
    }
}

TEST_CASE("a limit is compared as it is shown: what can be read can be typed") {
    struct Row {
        ADMUnits units;
        std::string typed;
        bool taken;
    };
    const Row rows[] = {
        {kADMInchUnits, "227.5417", true}, // a little more than the limit
        {kADMInchUnits, "227.5417in", true},      {kADMInchUnits, "227.5418", false},
        {kADMPointUnits, "16383", true},          {kADMPointUnits, "16383.0001", false},
        {kADMMillimeterUnits, "5779.5583", true}, {kADMMillimeterUnits, "-0.0001", false},
    };
    for (const auto& row : rows) {
        INFO(row.typed);
        Form form;
        form.field.setForm({.units = row.units, .precision = 4});
        form.field.setLowest(0);
        form.field.setHighest(16383);
        form.field.setValue(10);
        form.field.typed(row.typed);
        CHECK(form.field.commit() == row.taken);
        CHECK(form.field.value() == (row.taken ? 16383 : 10));
    }
}

TEST_CASE("a number stays as it is, bit for bit, unless another text is typed") {
    Form form;
    form.dialog.procedures.notify = nullptr;
    const float value = 16.38349F;
    form.field.setValue(value);
    takeHeard();
    form.field.activated(true);
    form.field.activated(false);
    CHECK(form.field.value() == value);
    CHECK(takeHeard().empty());

    const std::string shown = form.field.text();
    form.field.typed("12");
    form.field.typed(shown);
    CHECK(form.field.commit());
    CHECK(form.field.value() == value);
    CHECK(takeHeard() == Heard{"moving 4", "moving 4"});
}

TEST_CASE("arrows step from what is typed, stop at the limits and end with one notification") {
    Form form;
    form.dialog.procedures.notify = nullptr;
    form.field.typed("70");
    takeHeard();
    form.field.step(1, false, Phase::InProgress);
    form.field.step(1, false, Phase::InProgress);
    form.field.step(1, false, Phase::InProgress);
    form.field.step(0, false, Phase::Complete);
    CHECK(form.field.value() == 72);
    CHECK(takeHeard() == Heard{"moving 4", "moving 4", "user 4"});
    form.field.step(1, false, Phase::Complete); // at the limit already
    form.field.step(0, false, Phase::Complete);
    CHECK(takeHeard().empty());
    form.field.step(-1, /*large*/ true, Phase::Complete);
    CHECK(form.field.value() == 62);
    CHECK(takeHeard() == Heard{"user 4"});
    form.field.setKnown(false);
    form.field.step(1, false, Phase::Complete);
    CHECK(form.field.text().empty());
    form.field.setValue(3);
    CHECK(form.field.text() == "3");
}

TEST_CASE("of radio buttons with ids in a row, one is on") {
    Stage stage;
    CoADMDialog& dialog = stage.dialog();
    CoADMItem& first = Stage::add(dialog, 1, kADMPictureRadioButtonType);
    CoADMItem& second = Stage::add(dialog, 2, kADMPictureRadioButtonType);
    CoADMItem& box = Stage::add(dialog, 3, kADMTextCheckBoxType);
    CoADMItem& other = Stage::add(dialog, 4, kADMTextRadioButtonType);
    first.setValue(1);
    other.setValue(1);
    box.clicked();
    CHECK((first.isOn() && box.isOn() && other.isOn()));
    takeHeard();
    second.clicked();
    CHECK((second.isOn() && !first.isOn() && other.isOn()));
    second.clicked(); // on already
    CHECK(takeHeard() == Heard{"user 2"});
    dialog.setActive(&second);
    CHECK(dialog.key(DialogKey::Next, 0)); // round to the first
    CHECK((first.isOn() && !second.isOn()));
    CHECK(takeHeard() == Heard{"user 1"});
    first.setValue(0);
    CHECK((!first.isOn() && !second.isOn()));
    CHECK(takeHeard().empty());
    box.setKnown(false);
    box.clicked();
    CHECK((box.isOn() && box.view().known));
}

TEST_CASE("an entry of a field's popup counts as if typed, one of a list is chosen") {
    Stage stage;
    CoADMDialog& dialog = stage.dialog();
    CoADMItem& field = Stage::add(dialog, 11, kADMSpinEditPopupType);
    CoADMItem& list = Stage::add(dialog, 12, kADMPopupListType);
    for (const char* const text : {"1", "2", "", "6"}) {
        field.list()->insert(99).setText(text);
        list.list()->insert(99).setText(text);
    }
    list.list()->at(2)->makeSeparator(true);
    field.setHighest(5);
    field.setValue(2);
    field.choose(0);
    CHECK(field.value() == 1);
    field.choose(3); // beyond the limit
    CHECK(field.value() == 1);
    CHECK(takeHeard() == Heard{"user 11"});
    list.choose(3);
    list.choose(2);
    list.choose(17);
    CHECK(list.list()->chosen()->text() == "6");
    CHECK(list.view().chosen == 3);
    CHECK(takeHeard() == Heard{"user 12"});
    list.list()->remove(0);
    CHECK(list.view().chosen == 2);
    list.list()->remove(2);
    CHECK(list.list()->chosen() == nullptr);
}

TEST_CASE("Tab goes round in order, past what cannot have the focus") {
    Stage stage;
    CoADMDialog& dialog = stage.dialog();
    Stage::add(dialog, 10, kADMTextStaticType);
    Stage::add(dialog, 11, kADMTextEditType);
    Stage::add(dialog, 12, kADMSpinEditType).enable(false);
    Stage::add(dialog, 20, kADMTextRadioButtonType);
    Stage::add(dialog, 21, kADMTextRadioButtonType).setValue(1);
    Stage::add(dialog, 13, kADMTextCheckBoxType).show(false);
    Stage::add(dialog, 1, kADMTextPushButtonType);
    const auto stops = [&](DialogKey key) {
        std::vector<int> ids;
        for (int i = 0; i < 4; ++i) {
            dialog.key(key, 0);
            ids.push_back(dialog.active()->id());
        }
        return ids;
    };
    CHECK(stops(DialogKey::Tab) == std::vector{11, 21, 1, 11});
    CHECK(stops(DialogKey::BackTab) == std::vector{1, 21, 11, 1});
}

TEST_CASE("a handler may destroy its item, and its dialog") {
    Stage stage;
    CoADMDialog& dialog = stage.dialog(kADMModalDialogStyle);
    CoADMItem& item = Stage::add(dialog, 7, kADMTextCheckBoxType);
    item.procedures.notify = [](ADMItemRef self, ADMNotifierRef notifier) {
        CoADMDialog& owner = self->dialog();
        owner.destroyItem(*self);
        kItemSuite.DefaultNotify(self, notifier);
        owner.dialogs().destroy(owner);
    };
    item.procedures.destroy = [](ADMItemRef) { heard().emplace_back("item gone"); };
    dialog.procedures.destroy = [](ADMDialogRef) { heard().emplace_back("dialog gone"); };
    item.clicked();
    CHECK(takeHeard() == Heard{"item gone", "dialog gone"});
    CHECK(stage.dialogs.open().empty());
}

TEST_CASE("a timer fires until its procedure or an event ends it") {
    Stage stage;
    CoADMDialog& dialog = stage.dialog();
    static int left = 0;
    left = 2;
    const auto fired = [](ADMDialogRef, ADMTimerRef) -> ADMBoolean { return --left > 0; };
    const auto aborted = [](ADMDialogRef, ADMTimerRef, ADMAction action) {
        heard().push_back("aborted " + std::to_string(action));
    };
    dialog.startTimer(100, 0, fired, aborted);
    dialog.timerFired(1);
    CHECK(stage.peers->timers == std::vector{1});
    dialog.timerFired(1);
    CHECK(stage.peers->timers.empty());
    dialog.startTimer(100, maskOf(kADMKeyStrokeAction), fired, aborted);
    dialog.startTimer(100, 0, fired, aborted);
    dialog.key(DialogKey::Tab, 0);
    CHECK(stage.peers->timers == std::vector{3});
    stage.dialogs.destroy(dialog);
    CHECK(takeHeard() == Heard{"aborted -15", "aborted 2147483647"});
}

TEST_CASE("what a client's procedure throws as a modal dialog ends reaches the caller") {
    Stage stage;
    const auto init = [](ADMDialogRef dialog) -> ADMErr {
        kDialogSuite.SetDestroyProc(dialog, [](ADMDialogRef) { throw NRDMParameterException(); });
        return 0;
    };
    CHECK_THROWS_AS(stage.dialogs.modal({.name = "Throws", .init = init}), NRDMParameterException);
    CHECK(stage.dialogs.open().empty());
}

TEST_CASE("everything may be closed while a modal dialog runs, which then ends") {
    std::optional<Stage> stage(std::in_place);
    const auto run = [&] { CHECK(stage->dialogs.modal({.name = "Closed"}) == 0); };
    const auto close = [&] { stage.reset(); };
    SUBCASE("by what the user does in it") {
        stage->peers->user = close;
        run();
    }
    SUBCASE("by what the user does in one above it") {
        stage->peers->user = [&] {
            stage->peers->user = close;
            run();
        };
        run();
    }
    SUBCASE("by a button's procedure") {
        CoADMDialog& dialog = stage->dialog();
        CoADMItem& ok = Stage::add(dialog, 1, kADMTextPushButtonType);
        ok.procedures.notify = [](ADMItemRef item, ADMNotifierRef notifier) {
            static_cast<std::optional<Stage>*>(kItemSuite.GetUserData(item))->reset();
            kItemSuite.DefaultNotify(item, notifier);
        };
        ok.userData = &stage;
        stage->peers->user = [&] { ok.clicked(); };
        dialog.run();
    }
    SUBCASE("though a client's procedure throws at that") {
        const auto init = [](ADMDialogRef dialog) -> ADMErr {
            kDialogSuite.SetDestroyProc(dialog,
                                        [](ADMDialogRef) { throw NRDMParameterException(); });
            return 0;
        };
        stage->peers->user = [&] {
            stage->dialogs.closeAll();
            stage.reset();
        };
        CHECK(stage->dialogs.modal({.name = "Closed", .init = init}) == 0);
    }
    CHECK_FALSE(stage);
}

TEST_CASE("an item hears when its place changes, once its dialog is made") {
    Stage stage;
    const auto init = [](ADMDialogRef dialog) -> ADMErr {
        Stage::add(*dialog, 24, kADMTextStaticType).setBounds({22, 17, 212, 67});
        return 0;
    };
    CoADMDialog& dialog = *stage.dialogs.create({.name = "Moves", .init = init});
    CHECK(takeHeard().empty());
    dialog.item(24)->setBounds({22, 69, 212, 119});
    dialog.item(24)->setBounds({22, 69, 212, 119});
    CHECK(takeHeard() == Heard{"bounds 24"});
}

TEST_CASE("a dialog that its init procedure refuses is none, and bad calls are told") {
    Stage stage;
    const auto refuse = [](ADMDialogRef) -> ADMErr { return 1; };
    CHECK(stage.dialogs.create({.name = "No", .init = refuse}) == nullptr);
    CHECK(stage.dialogs.modal({.name = "No", .init = refuse}) == 0);
    CHECK(stage.dialogs.open().empty());
    CoADMDialog& dialog = stage.dialog();
    const ADMRect rect{};
    CHECK_THROWS_WITH_AS(kItemSuite.Create(&dialog, 1, "ADM Dial Type", &rect, nullptr, nullptr, 0),
                         "Bad parameter in NRDM call", NRDMParameterException);
    CHECK_THROWS_AS(kItemSuite.GetID(nullptr), NRDMParameterException);
    CHECK_THROWS_AS(kItemSuite.SetUnits(&Stage::add(dialog, 1, kADMTextEditType), 99),
                    NRDMParameterException);
    CHECK_THROWS_AS(Stage::add(dialog, 1, kADMTextStaticType), NRDMParameterException); // taken
    CHECK(dialog.items().size() == 1);
    CHECK_THROWS_WITH_AS(
        stage.dialogs.create({.name = "P", .style = kADMTabbedFloatingDialogStyle}),
        "Insuffucient resources", NRDMResourceException);
}
