#include "toolkit/layout/Parser.h"

#include "toolkit/layout/Lexer.h"
#include "toolkit/layout/Limits.h"
#include "toolkit/layout/Operators.h"
#include "toolkit/layout/Vocabulary.h"

#include <map>
#include <string>

namespace NRDM::layout::syntax {
namespace {

/// Thrown where reading cannot go on, caught where it can: at the next element or constant.
struct Failure {
    Position position;
    std::string text;
};

/// Thrown when there have been too many errors to go on.
struct GivingUp {};

/// A value, or nothing where none is to be had: on the side of a condition that does not count,
/// and behind a constant whose own value was at fault and has been reported.
using MaybeValue = std::optional<Value>;

Value valueOf(const ConstantRecord& constant) {
    return std::visit([](auto value) { return Value(value); }, constant.value);
}

std::string inQuotes(std::string_view word) { return '"' + std::string(word) + '"'; }

/// Counts one level of nesting for as long as it lives.
class Level {
public:
    Level(int& depth, Position position) : depth_(depth) {
        if (depth == kMaxDepth)
            throw Failure{position, "nested more than " + std::to_string(kMaxDepth) + " deep"};
        ++depth_;
    }
    ~Level() { --depth_; }
    Level(const Level&) = delete;
    Level& operator=(const Level&) = delete;

private:
    int& depth_;
};

class Parser {
public:
    Parser(std::string_view text, Messages& messages)
        : tokens_(tokenise(text)), messages_(messages) {}

    Text readText() {
        Text text;
        try {
            readHead(text);
            readSections();
            expectWord("view");
            readRoot(text);
            expect("}", "to close the layout");
            if (current().type != TokenType::End)
                warn(current().position, "text after the layout is passed over");
        } catch (const Failure& failure) {
            report(failure);
        }
        return text;
    }

private:
    // -- Tokens ------------------------------------------------------------------------------

    [[nodiscard]] const Token& current() const { return tokens_[at_]; }

    /// The token behind the current one; behind the end there is the end.
    [[nodiscard]] const Token& following() const {
        return tokens_[at_ + 1 < tokens_.size() ? at_ + 1 : at_];
    }

    const Token& take() {
        const Token& token = current();
        if (token.type != TokenType::End) ++at_;
        return token;
    }

    [[nodiscard]] static bool isMark(const Token& token, std::string_view mark) {
        return token.type == TokenType::Mark && token.text == mark;
    }

    [[nodiscard]] bool atMark(std::string_view mark) const { return isMark(current(), mark); }

    [[nodiscard]] bool atWord(std::string_view word) const {
        return current().type == TokenType::Word && current().text == word;
    }

    bool takeMark(std::string_view mark) {
        if (!atMark(mark)) return false;
        take();
        return true;
    }

    [[nodiscard]] static std::string nameOf(const Token& token) {
        switch (token.type) {
        case TokenType::End:
            return "the end of the text";
        case TokenType::Number:
            return "the number " + writtenNumber(token.number);
        case TokenType::String:
            return "the text " + inQuotes(token.text);
        case TokenType::Mark:
            return '\'' + std::string(token.text) + '\'';
        default:
            return inQuotes(token.text);
        }
    }

    /// Fails at the current token: with what is wrong with it, or with what was expected instead.
    [[noreturn]] void failExpecting(const std::string& what) const {
        const Token& found = current();
        if (found.type == TokenType::Invalid)
            throw Failure{found.position, std::string(found.text)};
        throw Failure{found.position, "expected " + what + ", found " + nameOf(found)};
    }

    void expect(std::string_view mark, const std::string& purpose) {
        if (!takeMark(mark)) failExpecting('\'' + std::string(mark) + "' " + purpose);
    }

    void expectWord(std::string_view word) {
        if (!atWord(word)) failExpecting(inQuotes(word));
        take();
    }

    /// A word of the text's own: not one that belongs to the grammar.
    const Token& takeName(const std::string& what) {
        if (current().type != TokenType::Word || isReserved(current().text)) failExpecting(what);
        return take();
    }

    // -- Messages ----------------------------------------------------------------------------

    void warn(Position position, std::string text) {
        messages_.push_back({Severity::Warning, position, std::move(text)});
    }

    /// What is missing at the end of a text that had errors may have been skipped with them.
    void report(const Failure& failure) {
        if (errors_ > 0 && current().type == TokenType::End) return;
        messages_.push_back({Severity::Error, failure.position, failure.text});
        if (++errors_ == kMaxErrors) throw GivingUp();
    }

    // -- Text, sections, constants -----------------------------------------------------------

    void readHead(Text& text) {
        expectWord("layout");
        text.name = takeName("the layout's name").text;
        expect("{", "after the layout's name");
    }

    void readSections() {
        while (!atWord("view")) {
            if (atWord("interface") || atWord("logic"))
                throw Failure{current().position, "a layout has no section " +
                                                      inQuotes(current().text) +
                                                      ": its values are all constant"};
            if (!atWord("constant")) failExpecting("\"constant\" or \"view\"");
            take();
            expect(":", "after \"constant\"");
            readConstants();
        }
    }

    void readConstants() {
        while (current().type != TokenType::End && !sectionBegins()) {
            try {
                readConstant();
            } catch (const Failure& failure) {
                report(failure);
                skipConstant();
            }
        }
    }

    [[nodiscard]] bool sectionBegins() const {
        return atWord("view") || atWord("constant") || atWord("interface") || atWord("logic");
    }

    void readConstant() {
        const Token name = takeName("a constant's name or \"view\"");
        if (findConstant(name.text))
            throw Failure{name.position, inQuotes(name.text) + " has its value already"};
        if (constants_.contains(name.text))
            throw Failure{name.position, inQuotes(name.text) + " is declared twice"};
        expect(":", "after the constant's name");
        try {
            constants_.emplace(name.text, readValue());
        } catch (const Failure&) {
            constants_.emplace(name.text, std::nullopt);
            throw;
        }
        expect(";", "after the value of " + inQuotes(name.text));
    }

    /// Goes on behind the next ';', or at what can only come after the constants.
    void skipConstant() {
        while (current().type != TokenType::End && !sectionBegins())
            if (isMark(take(), ";")) return;
    }

    // -- Elements ----------------------------------------------------------------------------

    void readRoot(Text& text) {
        try {
            text.root = readElement();
        } catch (const Failure& failure) {
            report(failure);
            skipElement();
        }
    }

    Element readElement() {
        const Token kind = takeName("the kind of an element");
        Element element{kind.text, kind.position, {}, {}};
        expect("(", "after " + inQuotes(kind.text));
        if (!takeMark(")")) element.arguments = readArguments();
        if (takeMark(";")) return element;
        const Level level(blockDepth_, current().position);
        expect("{", "or ';' after the ')' of " + inQuotes(kind.text));
        element.children = readChildren();
        return element;
    }

    std::vector<Element> readChildren() {
        std::vector<Element> children;
        while (!atMark("}") && current().type != TokenType::End) {
            try {
                children.push_back(readElement());
            } catch (const Failure& failure) {
                report(failure);
                skipElement();
            }
        }
        expect("}", "to close the block");
        return children;
    }

    /// Goes on behind the ';' or the block that ends the element at fault, or at the '}' that
    /// closes the block around it.
    void skipElement() {
        int depth = 0;
        while (current().type != TokenType::End) {
            if (depth == 0 && atMark("}")) return;
            const Token& token = take();
            if (isMark(token, "{")) ++depth;
            if (isMark(token, "}")) --depth;
            if (depth == 0 && (isMark(token, ";") || isMark(token, "}"))) return;
        }
    }

    std::vector<Argument> readArguments() {
        std::vector<Argument> arguments;
        do {
            const Token key = takeName("the name of an attribute");
            expect(":", "after " + inQuotes(key.text));
            const Position valuePosition = current().position;
            if (MaybeValue value = readValue())
                arguments.push_back({key.text, key.position, std::move(*value), valuePosition});
            if (!atMark(",") && !atMark(")"))
                failExpecting("',' or ')' after the value of " + inQuotes(key.text));
        } while (takeMark(","));
        take();
        return arguments;
    }

    // -- Values ------------------------------------------------------------------------------

    /// What cannot be worked out is at fault as a whole, and so reported where the value begins.
    MaybeValue readValue() {
        const Position start = current().position;
        try {
            return readConditional(Evaluate::Yes);
        } catch (const EvaluationError& error) {
            throw Failure{start, error.text};
        }
    }

    /// Whether words are looked up and operators applied. Where they are not, the text is still
    /// read by the same grammar.
    enum class Evaluate { No, Yes };

    static Evaluate onlyIf(bool condition) { return condition ? Evaluate::Yes : Evaluate::No; }

    MaybeValue readConditional(Evaluate evaluate) {
        const Level level(valueDepth_, current().position);
        MaybeValue condition = readBinary(kLowestPrecedence, evaluate);
        if (!takeMark("?")) return condition;
        const std::optional<bool> truth =
            condition ? std::optional(truthIn(*condition)) : std::nullopt;
        MaybeValue first = readConditional(onlyIf(truth == true));
        expect(":", "between the two values of '?'");
        MaybeValue second = readConditional(onlyIf(truth == false));
        return truth.value_or(false) ? std::move(first) : std::move(second);
    }

    MaybeValue readBinary(int precedence, Evaluate evaluate) {
        MaybeValue left = readPrefixed(evaluate);
        while (current().type == TokenType::Mark) {
            const BinaryOperator* operation = findBinaryOperator(current().text);
            if (!operation || operation->precedence < precedence) break;
            take();
            if (const MaybeValue decided = decidedByLeft(*operation, left)) {
                static_cast<void>(readBinary(operation->precedence + 1, Evaluate::No));
                left = decided;
                continue;
            }
            const MaybeValue right =
                readBinary(operation->precedence + 1, onlyIf(left.has_value()));
            left = left && right ? MaybeValue(operation->apply(*left, *right)) : std::nullopt;
        }
        return left;
    }

    /// The result of && or || when the left side alone decides it.
    static MaybeValue decidedByLeft(const BinaryOperator& operation, const MaybeValue& left) {
        if (!left) return std::nullopt;
        if (operation.mark == "&&" && !truthIn(*left)) return false;
        if (operation.mark == "||" && truthIn(*left)) return true;
        return std::nullopt;
    }

    /// A run of prefix operators is read in a loop: it may be as long as the text.
    MaybeValue readPrefixed(Evaluate evaluate) {
        const std::size_t first = at_;
        while (current().type == TokenType::Mark && isPrefixOperator(current().text))
            take();
        const std::size_t last = at_;
        MaybeValue value = readAtom(evaluate);
        if (evaluate == Evaluate::No) value.reset();
        for (std::size_t i = last; value && i > first; --i)
            value = applyPrefix(tokens_[i - 1].text, *value);
        return value;
    }

    MaybeValue readAtom(Evaluate evaluate) {
        if (current().type == TokenType::Number) return take().number;
        if (current().type == TokenType::String) return readString();
        if (current().type == TokenType::Word) return readWord(evaluate);
        if (takeMark("[")) return readList(evaluate);
        if (!takeMark("(")) failExpecting("a value");
        MaybeValue value = readConditional(evaluate);
        expect(")", "to close the '('");
        return value;
    }

    /// Strings that follow one another are one.
    MaybeValue readString() {
        const Position start = current().position;
        std::string text;
        while (current().type == TokenType::String)
            text += take().text;
        if (text.size() > kMaxStringBytes)
            throw Failure{start,
                          "a text has " + std::to_string(kMaxStringBytes) + " bytes at most"};
        return text;
    }

    MaybeValue readWord(Evaluate evaluate) {
        const Token& word = current();
        if (isMark(following(), "("))
            throw Failure{word.position, inQuotes(word.text) + " cannot be called: "
                                                               "a layout has no functions"};
        if (word.text == "true" || word.text == "false") return take().text == "true";
        if (word.text == "empty") {
            take();
            return MaybeValue(std::in_place);
        }
        if (isReserved(word.text)) failExpecting("a value");
        take();
        return evaluate == Evaluate::Yes ? lookUp(word) : std::nullopt;
    }

    MaybeValue lookUp(const Token& word) const {
        if (const ConstantRecord* constant = findConstant(word.text)) return valueOf(*constant);
        const auto own = constants_.find(word.text);
        if (own == constants_.end())
            throw Failure{word.position, "unknown word " + inQuotes(word.text)};
        return own->second;
    }

    MaybeValue readList(Evaluate evaluate) {
        const Position start = current().position;
        std::vector<double> numbers;
        bool known = evaluate == Evaluate::Yes;
        if (takeMark("]")) return known ? MaybeValue(std::move(numbers)) : std::nullopt;
        do {
            const MaybeValue value = readConditional(evaluate);
            known = known && value;
            if (known) numbers.push_back(numberIn(*value));
        } while (takeMark(","));
        expect("]", "or ',' after a number of the list");
        if (numbers.size() > kMaxListNumbers)
            throw Failure{start,
                          "a list has " + std::to_string(kMaxListNumbers) + " numbers at most"};
        return known ? MaybeValue(std::move(numbers)) : std::nullopt;
    }

    std::vector<Token> tokens_;
    std::size_t at_ = 0;
    Messages& messages_;
    int errors_ = 0;
    int blockDepth_ = 0;
    int valueDepth_ = 0;
    std::map<std::string_view, MaybeValue> constants_; // nothing: its value was at fault
};

} // namespace

Text read(std::string_view text, Messages& messages) {
    if (text.size() > kMaxTextBytes) {
        messages.push_back({Severity::Error,
                            {},
                            "the text is longer than " + std::to_string(kMaxTextBytes) + " bytes"});
        return {};
    }
    try {
        return Parser(text, messages).readText();
    } catch (const GivingUp&) {
        return {};
    }
}

} // namespace NRDM::layout::syntax
