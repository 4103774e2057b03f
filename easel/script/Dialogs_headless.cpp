#include "easel/script/Dialogs.h"

#include <algorithm>
#include <vector>

namespace easel {
namespace {

/// This program as the toolkit finds it.
class Screen final : public facetta::door::Program {
public:
    void opened(Dialog& dialog) override { open_.push_back(&dialog); }
    void closed(Dialog& dialog) noexcept override { std::erase(open_, &dialog); }
    bool nextEvent() noexcept override { return next_ != nullptr && (*next_)(); }

    void serve(const std::function<bool()>& next) {
        next_ = &next;
        while (next()) {
        }
        next_ = nullptr;
    }

    /// The last that was opened.
    [[nodiscard]] Dialog* find(bool modal) const {
        const auto found = std::find_if(open_.rbegin(), open_.rend(), [=](const Dialog* dialog) {
            return dialog->isModal() == modal;
        });
        return found != open_.rend() ? *found : nullptr;
    }

private:
    std::vector<Dialog*> open_;
    const std::function<bool()>* next_ = nullptr;
};

Screen& screen() {
    static Screen one;
    return one;
}

} // namespace

Dialog* modalDialog() { return screen().find(true); }

Dialog* panelDialog(const Host& /*host*/) { return screen().find(false); }

void serveUser(const std::function<bool()>& next) { screen().serve(next); }

} // namespace easel

extern "C" {

__attribute__((visibility("default"))) facetta::door::ProgramFunction headlessProgram;

facetta::door::Program* headlessProgram() { return &easel::screen(); }
}
