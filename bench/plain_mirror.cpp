/// plain_mirror IN.svg OUT.svg AXES
///
/// The least that mirroring a drawing can be: reads the paths of an SVG file (commands M, C and Z
/// alone, in absolute coordinates), writes each with its 2 AXES - 1 images about the middle of the
/// drawing, the reflected ones too, and knows nothing else. What the whole program is measured by.

#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <numbers>
#include <string>
#include <string_view>
#include <vector>

namespace {

constexpr double kMiddle = 4000;
constexpr std::string_view kPathData = " d=\"";
constexpr std::size_t kFlushBytes = 1 << 20;

struct Point {
    double x;
    double y;
};

struct Path {
    std::vector<Point> points; ///< The start, then three a curve.
    bool closed = false;
};

struct Map {
    double a;
    double b;
    double c;
    double d;

    [[nodiscard]] Point operator()(Point p) const {
        const double x = p.x - kMiddle;
        const double y = p.y - kMiddle;
        return {kMiddle + a * x + c * y, kMiddle + b * x + d * y};
    }
};

std::vector<Map> imagesOf(int axes) {
    std::vector<Map> images;
    for (int k = 0; k < axes; ++k) {
        const double angle = 2 * std::numbers::pi * k / axes;
        const double c = std::cos(angle);
        const double s = std::sin(angle);
        images.push_back({c, s, -s, c});
        images.push_back({c, s, s, -c});
    }
    return images;
}

Path readPath(std::string_view data) {
    Path path;
    std::vector<double> numbers;
    for (std::size_t i = 0; i < data.size();) {
        const char c = data[i];
        if (c == 'Z') path.closed = true;
        if (c == 'M' || c == 'C' || c == 'Z' || c == ' ') {
            ++i;
            continue;
        }
        double number = 0;
        const auto [end, error] = std::from_chars(&data[i], data.data() + data.size(), number);
        if (error != std::errc{}) std::exit(1);
        i = static_cast<std::size_t>(end - data.data());
        numbers.push_back(number);
    }
    for (std::size_t i = 0; i + 1 < numbers.size(); i += 2)
        path.points.push_back({numbers[i], numbers[i + 1]});
    return path;
}

void append(std::string& text, double number) {
    char digits[32];
    const auto [end, error] =
        std::to_chars(std::begin(digits), std::end(digits), static_cast<float>(number));
    text.append(digits, end);
}

void appendImage(std::string& text, const Path& path, const Map& map) {
    text += "<path fill=\"none\" stroke=\"#204080\" d=\"M";
    for (std::size_t i = 0; i < path.points.size(); ++i) {
        const Point point = map(path.points[i]);
        if (i > 0) text += i % 3 == 1 ? 'C' : ' ';
        append(text, point.x);
        text += ' ';
        append(text, point.y);
    }
    text += path.closed ? "Z\"/>\n" : "\"/>\n";
}

} // namespace

int main(int argumentCount, char** arguments) {
    if (argumentCount != 4) return 2;
    std::ifstream in(arguments[1], std::ios::binary);
    const std::string drawing(std::istreambuf_iterator<char>(in), {});
    const std::vector<Map> images = imagesOf(std::atoi(arguments[3]));
    std::ofstream out(arguments[2], std::ios::binary);
    std::string text = drawing.substr(0, drawing.find("<path"));
    for (std::size_t at = 0; (at = drawing.find(kPathData, at)) != std::string::npos;) {
        at += kPathData.size();
        const std::size_t end = drawing.find('"', at);
        const Path path = readPath(std::string_view(drawing).substr(at, end - at));
        for (const Map& map : images)
            appendImage(text, path, map);
        if (text.size() < kFlushBytes) continue;
        out << text;
        text.clear();
    }
    out << text << "</svg>\n";
    return out.flush() ? 0 : 1;
}
