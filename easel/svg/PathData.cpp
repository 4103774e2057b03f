#include "easel/svg/PathData.h"

#include "easel/svg/Numbers.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <utility>

namespace easel::svg {
namespace {

constexpr std::string_view kCommands = "MmLlHhVvCcSsQqTtAaZz";

Point mirroredAt(Point centre, Point p) { return 2.0 * centre - p; }

bool isSane(Point p) {
    return std::abs(p.x) <= kLargestCoordinate && std::abs(p.y) <= kLargestCoordinate;
}

/// Reads one `d` attribute from left to right.
class PathReader {
public:
    explicit PathReader(std::string_view text) : cursor_(text) {}

    PathData read() {
        cursor_.skipBlanks();
        while (!cursor_.atEnd() && data_.error.empty()) {
            if (!readCommand()) break;
            cursor_.skipBlanks();
        }
        finishSubpath();
        return std::move(data_);
    }

private:
    /// One letter with all its arguments. False after a mistake.
    bool readCommand() {
        const char letter = cursor_.peek();
        if (kCommands.find(letter) == std::string_view::npos) return fail("a command letter");
        if (data_.outline.empty() && subpath_.anchors.empty() && letter != 'M' && letter != 'm')
            return fail("M or m, with which path data begins");
        cursor_.skip(letter);
        relative_ = letter >= 'a';
        const char command = relative_ ? static_cast<char>(letter - 'a' + 'A') : letter;
        if (command == 'Z') {
            closeSubpath();
            previous_ = 'Z';
            return true;
        }
        bool first = true;
        do {
            // Further pairs after a move are lines.
            const char repeated = command == 'M' && !first ? 'L' : command;
            if (!readArguments(repeated)) return false;
            previous_ = repeated;
            first = false;
        } while (argumentsFollow());
        return true;
    }

    bool argumentsFollow() {
        Cursor ahead = cursor_;
        ahead.skipSeparators();
        const char c = ahead.peek();
        return (c >= '0' && c <= '9') || c == '.' || c == '+' || c == '-';
    }

    bool readArguments(char command) {
        struct Row {
            char command;
            bool (PathReader::*read)();
        };
        static constexpr Row kRows[] = {
            {'M', &PathReader::moveTo},      {'L', &PathReader::lineTo},
            {'H', &PathReader::across},      {'V', &PathReader::down},
            {'C', &PathReader::curveTo},     {'S', &PathReader::smoothCurveTo},
            {'Q', &PathReader::quadraticTo}, {'T', &PathReader::smoothQuadraticTo},
            {'A', &PathReader::arcTo},
        };
        return (this->*std::ranges::find(kRows, command, &Row::command)->read)();
    }

    bool moveTo() {
        const auto given = points<1>();
        if (!given) return false;
        finishSubpath();
        current_ = start_ = given->front();
        subpath_.anchors.push_back(cornerAt(current_));
        return true;
    }

    bool lineTo() {
        const auto given = points<1>();
        return given && line(given->front());
    }

    bool across() { return alongAxis(&Point::x); }
    bool down() { return alongAxis(&Point::y); }

    bool alongAxis(double Point::*axis) {
        const auto value = number();
        if (!value) return false;
        Point target = current_;
        target.*axis = relative_ ? current_.*axis + *value : *value;
        return isSane(target) ? line(target) : failRange();
    }

    bool curveTo() {
        const auto given = points<3>();
        return given && curve((*given)[0], (*given)[1], (*given)[2]);
    }

    bool smoothCurveTo() {
        const auto given = points<2>();
        const bool smooth = previous_ == 'C' || previous_ == 'S';
        return given && curve(goingOn(smooth), (*given)[0], (*given)[1]);
    }

    bool quadraticTo() {
        const auto given = points<2>();
        return given && quadratic((*given)[0], (*given)[1]);
    }

    bool smoothQuadraticTo() {
        const auto given = points<1>();
        const bool smooth = previous_ == 'Q' || previous_ == 'T';
        return given && quadratic(goingOn(smooth), given->front());
    }

    bool arcTo() {
        const auto radiusX = number();
        const auto radiusY = radiusX ? number() : std::nullopt;
        const auto rotation = radiusY ? number() : std::nullopt;
        if (!rotation) return false;
        const auto largeArc = cursor_.flag();
        const auto sweep = largeArc ? cursor_.flag() : std::nullopt;
        if (!sweep) return fail("the arc's flags, 0 or 1");
        const auto target = point();
        if (!target) return false;
        if (!isSane({*radiusX, *radiusY})) return failRange();
        beginIfNeeded();
        appendArc(subpath_, {*radiusX, *radiusY}, *rotation, *largeArc, *sweep, *target);
        current_ = *target;
        return true;
    }

    bool line(Point target) {
        beginIfNeeded();
        appendLine(subpath_, target);
        current_ = target;
        return true;
    }

    /// The control point of a curve that goes on as the one before it ended.
    [[nodiscard]] Point goingOn(bool smooth) const {
        return smooth ? mirroredAt(current_, control_) : current_;
    }

    bool curve(Point control1, Point control2, Point target) {
        beginIfNeeded();
        appendCurve(subpath_, control1, control2, target);
        control_ = control2;
        current_ = target;
        return true;
    }

    /// A quadratic curve is the cubic whose handles go two thirds of the way to its one control.
    bool quadratic(Point control, Point target) {
        const Point control1 = current_ + 2.0 / 3.0 * (control - current_);
        const Point control2 = target + 2.0 / 3.0 * (control - target);
        curve(control1, control2, target);
        control_ = control;
        return true;
    }

    std::optional<double> number() {
        const std::optional<double> value = cursor_.number();
        if (!value) fail("a number");
        return value;
    }

    std::optional<Point> point() {
        const auto x = number();
        const auto y = x ? number() : std::nullopt;
        if (!y) return std::nullopt;
        const Point result = relative_ ? current_ + Point{*x, *y} : Point{*x, *y};
        if (isSane(result)) return result;
        failRange();
        return std::nullopt;
    }

    template <std::size_t Count> std::optional<std::array<Point, Count>> points() {
        std::array<Point, Count> result;
        for (Point& each : result) {
            const auto next = point();
            if (!next) return std::nullopt;
            each = *next;
        }
        return result;
    }

    /// What is drawn on after Z starts where the closed subpath started.
    void beginIfNeeded() {
        if (subpath_.anchors.empty()) subpath_.anchors.push_back(cornerAt(current_));
    }

    void closeSubpath() {
        if (!subpath_.anchors.empty()) {
            close(subpath_);
            finishSubpath();
        }
        current_ = start_;
    }

    void finishSubpath() {
        if (!subpath_.anchors.empty()) data_.outline.push_back(std::move(subpath_));
        subpath_ = {};
    }

    bool fail(std::string_view expected) {
        std::string found{cursor_.rest().substr(0, 12)};
        data_.error = found.empty() ? "it ends too early" : "'" + found + "' stands";
        data_.error += " where " + std::string{expected} + " is due";
        return false;
    }

    bool failRange() {
        data_.error = "a coordinate is beyond 1e9";
        return false;
    }

    Cursor cursor_;
    PathData data_;
    Subpath subpath_;
    Point current_;
    Point start_;
    Point control_; ///< The last curve's second control point, or a quadratic curve's only one.
    bool relative_ = false;
    char previous_ = '\0';
};

} // namespace

PathData parsePathData(std::string_view text) { return PathReader{text}.read(); }

} // namespace easel::svg
