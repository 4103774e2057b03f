#pragma once

#include "easel/script/ScriptText.h"
#include "easel/script/System.h"

#include <span>

namespace easel::script {

/// A place as a script says it: "X,Y" in user units of the drawing, "X,Ypx" in pixels of the view.
/// Both from the top left, y down.
struct Place {
    double x = 0;
    double y = 0;
    bool pixels = false;
};
[[nodiscard]] std::string textOf(Place place);

/// The words after a command's name, taken one by one. What does not fit throws Mistake; `what`
/// names it to the user.
class Arguments {
public:
    explicit Arguments(std::vector<Word> words) : words_(std::move(words)) {}

    /// No argument is left, though "with" and keys may be.
    [[nodiscard]] bool atEnd() const { return next_ == words_.size() || isKeyword("with"); }
    /// Takes the next word if it is this keyword.
    bool take(std::string_view keyword);
    [[nodiscard]] std::string text(const char* what);
    /// As it is written, with or without quotes.
    [[nodiscard]] Word word(const char* what) { return next(what); }
    /// Finite.
    [[nodiscard]] double number(const char* what);
    [[nodiscard]] int whole(const char* what, int least, int most);
    [[nodiscard]] Place place(const char* what);
    /// Which of `choices` stands here.
    [[nodiscard]] std::size_t choice(const char* what, std::span<const char* const> choices);
    /// The row whose name stands here.
    template <typename Rows> [[nodiscard]] const auto& row(const char* what, const Rows& rows) {
        std::vector<const char*> names;
        for (const auto& each : rows)
            names.push_back(each.name);
        return rows[choice(what, names)];
    }
    /// The keys that "with" names, which end the line; none when it does not stand here.
    [[nodiscard]] HeldKeys keys();

private:
    [[nodiscard]] bool isKeyword(std::string_view keyword) const {
        return !words_[next_].quoted && words_[next_].text == keyword;
    }
    const Word& next(const char* what);

    std::vector<Word> words_;
    std::size_t next_ = 0;
};

/// The virtual key codes that the host has modifiers for.
inline constexpr std::size_t kShiftKey = 0x10;
inline constexpr std::size_t kControlKey = 0x11;
inline constexpr std::size_t kAltKey = 0x12;
inline constexpr std::size_t kSpaceKey = 0x20;
/// What "with" calls the key of that virtual key code; empty when scripts know no such key.
[[nodiscard]] std::string nameOfKey(std::size_t code);

} // namespace easel::script
