#include "toolkit/gallery/LayoutPage.h"

#include "toolkit/ImplCommon/CoADMDialog.h"

#include <algorithm>
#include <string_view>

namespace NRDM::gallery {
namespace {

constexpr Extent kSize{500, 336};
constexpr int kLine = 16;
constexpr int kGutter = 40;
constexpr int kRows = (kSize.height - 24) / kLine;
constexpr int kLinesBefore = 6; ///< the first mistake

// ADM's numbers.
constexpr ADMColor kQuiet = 7;
constexpr ADMColor kPaper = 13;
constexpr ADMColor kText = 15;

constexpr ADMRGBColor kMistake{226 * 257, 66 * 257, 66 * 257};
constexpr ADMRGBColor kDoubt{214 * 257, 150 * 257, 40 * 257};

/// A text and what is wrong in it; belongs to the item that shows it.
struct Mistakes {
    std::vector<std::string> lines;
    layout::Messages messages;
    int firstLine = 1;
};

std::vector<std::string> linesOf(const std::string& text) {
    std::vector<std::string> lines(1);
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n') continue;
        if (text[i] == '\r' || text[i] == '\n')
            lines.emplace_back();
        else
            lines.back() += text[i] == '\t' ? ' ' : text[i];
    }
    return lines;
}

/// Where `message` is: a mark below its letter, and what is wrong in words.
void drawMessage(const ADMDrawerSuite& suite, ADMDrawerRef drawer, const layout::Message& message,
                 const std::string& line, int top) {
    suite.SetRGBColor(drawer, message.severity == layout::Severity::Error ? &kMistake : &kDoubt);
    const auto before = static_cast<std::size_t>(message.position.column - 1);
    const int x =
        kGutter + suite.GetTextWidth(drawer, line.substr(0, std::min(before, line.size())).c_str());
    const ADMRect mark{x - 1, top - 3, x + 8, top - 1};
    suite.FillRect(drawer, &mark);
    const int width = suite.GetTextWidth(drawer, message.text.c_str());
    const int left = std::max(kGutter, std::min(x, kSize.width - 16 - width));
    const ADMRect words{left, top, kSize.width - 12, top + kLine};
    suite.DrawTextLeft(drawer, message.text.c_str(), &words);
}

void drawMistakes(ADMItemRef item, ADMDrawerRef drawer) {
    const Suites suites;
    const ADMDrawerSuite& suite = *suites.drawer;
    const auto& [lines, messages, firstLine] =
        *static_cast<const Mistakes*>(suites.item->GetUserData(item));
    ADMRect area{};
    suite.GetBoundsRect(drawer, &area);
    suite.SetADMColor(drawer, kPaper);
    suite.FillRect(drawer, &area);
    int row = 0;
    for (int number = firstLine; number <= std::ssize(lines) && row < kRows; ++number, ++row) {
        const std::string& line = lines[static_cast<std::size_t>(number - 1)];
        const int top = 12 + row * kLine;
        const ADMRect margin{0, top, kGutter - 10, top + kLine};
        const ADMRect place{kGutter, top, kSize.width - 12, top + kLine};
        suite.SetADMColor(drawer, kQuiet);
        suite.DrawTextRight(drawer, std::to_string(number).c_str(), &margin);
        suite.SetADMColor(drawer, kText);
        suite.DrawTextLeft(drawer, line.c_str(), &place);
        for (const layout::Message& message : messages)
            if (message.position.line == number)
                drawMessage(suite, drawer, message, line, 12 + ++row * kLine);
    }
}

void dropMistakes(ADMItemRef item) {
    const Suites suites;
    delete static_cast<Mistakes*>(suites.item->GetUserData(item));
}

void outline(ADMItemRef, ADMDrawerRef drawer) {
    const Suites suites;
    ADMRect area{};
    suites.drawer->GetBoundsRect(drawer, &area);
    suites.drawer->SetADMColor(drawer, kQuiet);
    suites.drawer->DrawRect(drawer, &area);
}

void outlineUserItems(ADMDialogRef dialog) {
    const Suites suites;
    for (ADMItemRef item = suites.dialog->GetItem(dialog, kADMFirstItemID); item != nullptr;
         item = suites.dialog->GetNextItem(dialog, item))
        if (std::string_view(suites.item->GetItemType(item)) == kADMUserType)
            suites.item->SetDrawProc(item, outline);
}

} // namespace

std::unique_ptr<Page> mistakesPage(const std::string& title, const std::string& text,
                                   const layout::Messages& messages) {
    auto page = std::make_unique<Page>(title.c_str(), kSize, Page::Fonts::OfDialogs);
    const int firstMistake = messages.empty() ? 1 : messages.front().position.line;
    auto mistakes = std::make_unique<Mistakes>(
        Mistakes{linesOf(text), messages, std::max(1, firstMistake - kLinesBefore)});
    page->add(kADMUserType, {0, 0, kSize.width, kSize.height}, "", 0, mistakes.get())
        .drawn(drawMistakes)
        .dropped(dropMistakes);
    mistakes.release(); // NOLINT(bugprone-unused-return-value): the item's from here on
    return page;
}

std::unique_ptr<Page> layoutPage(const layout::Layout& layout, Dialogs& dialogs) {
    ADMDialogRef dialog = dialogs.create({.name = "Layout"}, layout);
    auto page = std::make_unique<Page>(dialog);
    outlineUserItems(dialog);
    return page;
}

} // namespace NRDM::gallery
