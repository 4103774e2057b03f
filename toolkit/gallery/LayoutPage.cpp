#include "toolkit/gallery/LayoutPage.h"

#include "toolkit/ImplWin/CoADMDrawer.h"

#include <algorithm>

namespace NRDM::gallery {
namespace {

constexpr Extent kSize{500, 336};
constexpr int kLine = 16;
constexpr int kGutter = 40;
constexpr int kRows = (kSize.height - 24) / kLine;
constexpr int kLinesBefore = 6; ///< the first mistake

constexpr Colour kMistake{226, 66, 66};
constexpr Colour kDoubt{214, 150, 40};

std::vector<std::wstring> linesOf(const std::string& text) {
    std::vector<std::wstring> lines(1);
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n') continue;
        if (text[i] == '\r' || text[i] == '\n')
            lines.emplace_back();
        else
            lines.back() += text[i] == '\t' ? L' ' : static_cast<unsigned char>(text[i]);
    }
    return lines;
}

/// Where `message` is: a mark below its letter, and what is wrong in words.
void drawMessage(CoADMDrawer& drawer, const layout::Message& message, const std::wstring& line,
                 int top) {
    drawer.setColour(message.severity == layout::Severity::Error ? kMistake : kDoubt);
    const auto before = static_cast<std::size_t>(message.position.column - 1);
    const int x = kGutter + drawer.textWidth(line.substr(0, std::min(before, line.size())));
    drawer.fillRect({x - 1, top - 3, x + 8, top - 1});
    const std::wstring text = toWide(message.text);
    const int width = drawer.textWidth(text);
    const int left = std::max(kGutter, std::min(x, kSize.width - 16 - width));
    drawer.drawText(text, Bounds{left, top, kSize.width - 12, top + kLine}, Justify::Left);
}

} // namespace

std::unique_ptr<Page> mistakesPage(const std::string& title, const std::string& text,
                                   const layout::Messages& messages) {
    auto page = std::make_unique<Page>(title, kSize, DialogKind::Modal);
    ItemView view;
    view.kind = ControlKind::User;
    view.bounds = {0, 0, kSize.width, kSize.height};
    const int firstMistake = messages.empty() ? 1 : messages.front().position.line;
    const int firstLine = std::max(1, firstMistake - kLinesBefore);
    page->addDrawn(view, [lines = linesOf(text), messages, firstLine](CoADMDrawer& drawer) {
        drawer.setColour(13);
        drawer.fillRect(drawer.bounds());
        int row = 0;
        for (int number = firstLine; number <= static_cast<int>(lines.size()) && row < kRows;
             ++number, ++row) {
            const std::wstring& line = lines[static_cast<std::size_t>(number - 1)];
            const int top = 12 + row * kLine;
            drawer.setColour(7);
            drawer.drawText(std::to_wstring(number), Bounds{0, top, kGutter - 10, top + kLine},
                            Justify::Right);
            drawer.setColour(15);
            drawer.drawText(line, Bounds{kGutter, top, kSize.width - 12, top + kLine},
                            Justify::Left);
            for (const layout::Message& message : messages)
                if (message.position.line == number)
                    drawMessage(drawer, message, line, 12 + ++row * kLine);
        }
    });
    return page;
}

} // namespace NRDM::gallery
