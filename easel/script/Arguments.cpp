#include "easel/script/Arguments.h"

#include "easel/svg/Numbers.h"

#include <algorithm>
#include <cmath>

namespace easel::script {
namespace {

struct KeyName {
    const char* name;
    std::size_t code;
};
/// Letters and digits besides: their codes are those of the capital characters.
constexpr KeyName kKeys[] = {{"shift", kShiftKey},
                             {"ctrl", kControlKey},
                             {"alt", kAltKey},
                             {"escape", 0x1B},
                             {"space", kSpaceKey},
                             {"[", 219},
                             {"]", 221}};

std::size_t keyNamed(const std::string& name) {
    for (const KeyName& key : kKeys)
        if (name == key.name) return key.code;
    const char letter = name.size() == 1 ? name.front() : ' ';
    if (letter >= '0' && letter <= '9') return static_cast<std::size_t>(letter);
    if (letter >= 'a' && letter <= 'z') return static_cast<std::size_t>(letter - 'a') + 'A';
    throw Mistake("there is no key \"" + name +
                  "\"; keys are shift, ctrl, alt, escape, space, [, ], digits and letters");
}

} // namespace

std::string nameOfKey(std::size_t code) {
    for (const KeyName& key : kKeys)
        if (key.code == code) return key.name;
    if (code >= '0' && code <= '9') return {static_cast<char>(code)};
    if (code >= 'A' && code <= 'Z') return {static_cast<char>(code - 'A' + 'a')};
    return {};
}

std::string textOf(Place place) {
    return svg::formatNumber(place.x) + ',' + svg::formatNumber(place.y) +
           (place.pixels ? "px" : "");
}

const Word& Arguments::next(const char* what) {
    if (atEnd()) throw Mistake(std::string("there is no ") + what);
    return words_[next_++];
}

bool Arguments::take(std::string_view keyword) {
    if (next_ == words_.size() || !isKeyword(keyword)) return false;
    ++next_;
    return true;
}

std::string Arguments::text(const char* what) { return next(what).text; }

double Arguments::number(const char* what) {
    const std::string& text = next(what).text;
    if (const auto number = svg::parseNumber(text)) return *number;
    throw Mistake('"' + text + "\" is no number");
}

int Arguments::whole(const char* what, int least, int most) {
    const double value = number(what);
    if (value == std::floor(value) && value >= least && value <= most)
        return static_cast<int>(value);
    throw Mistake(svg::formatNumber(value) + " is no " + what + "; it goes from " +
                  std::to_string(least) + " to " + std::to_string(most));
}

Place Arguments::place(const char* what) {
    const std::string& text = next(what).text;
    Place place;
    std::string_view rest = text;
    if (rest.ends_with("px")) {
        place.pixels = true;
        rest.remove_suffix(2);
    }
    const std::size_t comma = rest.find(',');
    if (comma != std::string_view::npos) {
        const auto x = svg::parseNumber(rest.substr(0, comma));
        const auto y = svg::parseNumber(rest.substr(comma + 1));
        if (x && y) return {*x, *y, place.pixels};
    }
    throw Mistake('"' + text +
                  "\" is no place; one is written X,Y, or X,Ypx in pixels of the view");
}

std::size_t Arguments::choice(const char* what, std::span<const char* const> choices) {
    const Word& word = next(what);
    const auto found = std::find(choices.begin(), choices.end(), word.text);
    if (found != choices.end()) return static_cast<std::size_t>(found - choices.begin());
    std::string known;
    for (const char* const each : choices)
        known += (known.empty() ? "" : ", ") + std::string(each);
    throw Mistake('"' + word.text + "\" is no " + what + "; choose one of " + known);
}

HeldKeys Arguments::keys() {
    HeldKeys held;
    if (!take("with")) {
        if (next_ < words_.size())
            throw Mistake('"' + words_[next_].text + "\" does not belong here");
        return held;
    }
    if (next_ == words_.size()) throw Mistake("there are no keys after \"with\"");
    while (next_ < words_.size())
        held.set(keyNamed(words_[next_++].text));
    return held;
}

} // namespace easel::script
