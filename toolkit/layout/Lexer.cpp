#include "toolkit/layout/Lexer.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <iterator>

namespace NRDM::layout {
namespace {

// Longer marks stand before those they begin with.
constexpr std::string_view kMarks[] = {
    "<==", "<<", ">>", "<=", ">=", "==", "!=", "&&", "||", "{", "}", "(", ")", "[", "]", ",", ";",
    ":",   ".",  "@",  "?",  "+",  "-",  "*",  "/",  "%",  "!", "~", "&", "|", "^", "<", ">"};

// Of plain ASCII, whatever the locale.
bool isDigit(char c) { return c >= '0' && c <= '9'; }
bool startsWord(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_'; }
bool continuesWord(char c) { return startsWord(c) || isDigit(c); }
bool isLineEnd(char c) { return c == '\r' || c == '\n'; }
bool isBlank(char c) { return c == ' ' || c == '\t' || c == '\f' || c == '\v'; }

/// The value of a hexadecimal digit, or -1.
int hexDigit(char c) {
    if (isDigit(c)) return c - '0';
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    return -1;
}

class Lexer {
public:
    explicit Lexer(std::string_view text) : text_(text) {
        constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
        if (text_.starts_with(kUtf8Mark)) text_.remove_prefix(kUtf8Mark.size());
    }

    Token next() {
        if (const Token unclosed = skipSpace(); unclosed.type == TokenType::Invalid)
            return unclosed;
        if (at_ == text_.size()) return {TokenType::End, {}, 0.0, position()};
        const char c = text_[at_];
        if (startsWord(c)) return word();
        if (isDigit(c)) return number();
        if (c == '"' || c == '\'') return string();
        return mark();
    }

private:
    /// The character `ahead` of the current one; NUL, which begins no token, behind the end.
    [[nodiscard]] char peek(std::size_t ahead = 0) const {
        return at_ + ahead < text_.size() ? text_[at_ + ahead] : '\0';
    }

    [[nodiscard]] Position position() const {
        return {line_, static_cast<int>(at_ - lineStart_) + 1};
    }

    void endLine() {
        at_ += peek() == '\r' && peek(1) == '\n' ? 2 : 1;
        ++line_;
        lineStart_ = at_;
    }

    void advance() {
        if (isLineEnd(peek()))
            endLine();
        else
            ++at_;
    }

    template <class Predicate> std::string_view takeWhile(Predicate belongs) {
        const std::size_t start = at_;
        while (at_ < text_.size() && belongs(text_[at_]))
            ++at_;
        return text_.substr(start, at_ - start);
    }

    /// Skips white space and comments; an invalid token when a comment is not closed.
    Token skipSpace() {
        while (at_ < text_.size()) {
            if (isBlank(peek()) || isLineEnd(peek())) {
                advance();
            } else if (peek() == '/' && peek(1) == '/') {
                takeWhile([](char c) { return !isLineEnd(c); });
            } else if (peek() == '/' && peek(1) == '*') {
                const Position opening = position();
                if (!skipBlockComment()) return invalid("the comment is not closed", opening);
            } else {
                break;
            }
        }
        return {};
    }

    bool skipBlockComment() {
        at_ += 2;
        while (at_ < text_.size()) {
            if (peek() == '*' && peek(1) == '/') {
                at_ += 2;
                return true;
            }
            advance();
        }
        return false;
    }

    static Token invalid(std::string_view what, Position where) {
        return {TokenType::Invalid, what, 0.0, where};
    }

    /// An invalid token at the current place; the characters of the run at fault are skipped.
    Token invalidRun(std::string_view what) {
        const Token token = invalid(what, position());
        takeWhile([](char c) { return continuesWord(c) || c == '.'; });
        return token;
    }

    Token word() {
        const Position start = position();
        return {TokenType::Word, takeWhile(continuesWord), 0.0, start};
    }

    Token number() {
        const Position start = position();
        const bool hexadecimal = peek() == '0' && (peek(1) == 'x' || peek(1) == 'X');
        const double value = hexadecimal ? hexadecimalNumber() : decimalNumber();
        if (peek() == '.') return invalidRun("a number has one point at most");
        if (continuesWord(peek())) return invalidRun("letters directly after a number");
        if (!std::isfinite(value)) return invalid("the number is out of range", start);
        return {TokenType::Number, {}, value, start};
    }

    /// Reads nothing when no digit follows the 0x: the x is then a letter after the number 0.
    double hexadecimalNumber() {
        if (hexDigit(peek(2)) < 0) {
            ++at_;
            return 0.0;
        }
        at_ += 2;
        double value = 0.0;
        for (const char digit : takeWhile([](char c) { return hexDigit(c) >= 0; }))
            value = value * 16.0 + hexDigit(digit);
        return value;
    }

    double decimalNumber() {
        const std::size_t start = at_;
        takeWhile(isDigit);
        if (peek() == '.') ++at_;
        takeWhile(isDigit);
        double value = 0.0;
        const auto [end, error] = std::from_chars(text_.data() + start, text_.data() + at_, value,
                                                  std::chars_format::fixed);
        return error == std::errc() ? value : HUGE_VAL;
    }

    Token string() {
        const Position opening = position();
        const char quote = text_[at_++];
        const std::string_view inside =
            takeWhile([quote](char c) { return c != quote && !isLineEnd(c) && c != '\0'; });
        if (at_ == text_.size() || isLineEnd(text_[at_]))
            return invalid("the text is not closed on its line", opening);
        const Position end = position();
        const char last = text_[at_++];
        if (last == '\0') return invalid("a text cannot hold a NUL byte", end);
        return {TokenType::String, inside, 0.0, opening};
    }

    Token mark() {
        const Position start = position();
        const std::string_view rest = text_.substr(at_);
        const auto found = std::ranges::find_if(
            kMarks, [rest](std::string_view candidate) { return rest.starts_with(candidate); });
        if (found == std::end(kMarks)) {
            ++at_;
            return invalid("a byte that belongs to no word, number, text or mark", start);
        }
        at_ += found->size();
        return {TokenType::Mark, *found, 0.0, start};
    }

    std::string_view text_;
    std::size_t at_ = 0;
    std::size_t lineStart_ = 0;
    int line_ = 1;
};

} // namespace

std::vector<Token> tokenise(std::string_view text) {
    std::vector<Token> tokens;
    Lexer lexer(text);
    do
        tokens.push_back(lexer.next());
    while (tokens.back().type != TokenType::End);
    return tokens;
}

} // namespace NRDM::layout
