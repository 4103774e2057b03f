#include "easel/validate/Trials.h"

#include <algorithm>

namespace easel::validate {

bool Trials::wantsUpTo(std::uint64_t last) const noexcept {
    return last >= options_.from && (options_.count == 0 || begun_ < options_.count);
}

bool Trials::begin(std::uint64_t number, std::string_view what) {
    if (!wantsUpTo(number)) return false;
    ++begun_;
    tell(kTry, std::to_string(number) + '\t' + std::string(what));
    return true;
}

void Trials::fail(std::string_view what) { tell(kFinding, what); }

void Trials::explain(std::string_view lines) {
    while (!lines.empty()) {
        const std::size_t end = std::min(lines.find('\n'), lines.size());
        tell(kExplanation, lines.substr(0, end));
        lines.remove_prefix(std::min(end + 1, lines.size()));
    }
}

void Trials::end() { tell(kEnd, std::to_string(begun_)); }

void Trials::tell(std::string_view word, std::string_view what) {
    std::string line(what);
    std::ranges::replace(line, '\n', ' ');
    out_ << word << '\t' << line << std::endl; // at once: the next thing may be a crash
}

std::uint64_t Trials::mix(std::uint64_t number) const noexcept {
    // Neighbours must not have alike generators: the finaliser of splitmix64.
    std::uint64_t bits = options_.seed * 0x9E3779B97F4A7C15U + number;
    bits = (bits ^ (bits >> 30)) * 0xBF58476D1CE4E5B9U;
    bits = (bits ^ (bits >> 27)) * 0x94D049BB133111EBU;
    return bits ^ (bits >> 31);
}

} // namespace easel::validate
