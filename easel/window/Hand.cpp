#include "easel/window/Hand.h"

#include "easel/script/Script.h"
#include "easel/window/NativeWindow.h"

#include <algorithm>

namespace easel::window {
namespace {

constexpr wchar_t kTitle[] = L"Easel";

} // namespace

Hand::Hand(Session& session, const script::PlayerSettings& settings)
    : player(session, settings), session_(session), lastTick_(GetTickCount64()) {
    player.bareHost().user.showAlert = [this](const Alert& alert) { return show(alert); };
    player.bareHost().panels.overhears = [this](const std::string& deed) {
        script.note("panel " + deed);
    };
}

bool Hand::act(const std::string& line, const std::string& kept) {
    bool done = false;
    try {
        script.act(line, kept);
        done = true;
    } catch (const ai::Error& error) {
        complain("the host answered " + codeText(error.code));
    } catch (const std::exception& error) {
        complain(error.what());
    }
    if (settled) settled();
    return done;
}

void Hand::passTime() {
    const ULONGLONG now = GetTickCount64();
    if (now == lastTick_ || script.isBusy() || host().contexts.depth() != 0) return;
    constexpr ULONGLONG kLongest = 60'000; // the machine may have slept
    const ULONGLONG passed = std::min(now - lastTick_, kLongest);
    lastTick_ = now;
    act("wait " + std::to_string(passed));
}

void Hand::complain(const std::string& what) {
    if (!complaints_.insert(what).second) return;
    MessageBoxW(owner, wide(what).c_str(), kTitle, MB_OK | MB_ICONWARNING);
}

AIAnswer Hand::show(const Alert& alert) {
    struct Row {
        const char* kind;
        UINT look;
        bool asks;
    };
    constexpr Row kRows[] = {{"message", MB_OK | MB_ICONINFORMATION, false},
                             {"warning", MB_OK | MB_ICONWARNING, false},
                             {"error", MB_OK | MB_ICONERROR, false},
                             {"question", MB_YESNOCANCEL | MB_ICONQUESTION, true},
                             {"yes-no", MB_YESNO | MB_ICONQUESTION, true}};
    const auto* const row =
        std::ranges::find_if(kRows, [&](const Row& each) { return alert.kind == each.kind; });
    if (row == std::end(kRows)) return 1;
    const int button = MessageBoxW(owner, wide(alert.text).c_str(), kTitle, row->look);
    const auto answer = static_cast<AIAnswer>(button == IDNO ? 0 : button == IDCANCEL ? 2 : 1);
    script.noteAlert(alert.text, row->asks ? std::optional(answer) : std::nullopt);
    return answer;
}

std::string pixelPlace(double x, double y) { return script::textOf({x, y, true}); }

} // namespace easel::window
