#pragma once

#include "easel/svg/Colour.h"
#include "easel/svg/StyleSheet.h"

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace easel::svg {

/// What fills or strokes a shape.
struct Paint {
    enum class Kind { None, Plain, Server };
    Kind kind = Kind::None;
    Colour colour;      ///< Plain; of a server what stands in when it does not exist.
    bool spare = false; ///< A server has a colour that stands in.
    std::string server; ///< The id of a gradient or pattern.
    bool operator==(const Paint&) const = default;
};

enum class Cap { Butt, Round, Square };
enum class Join { Miter, Round, Bevel };
enum class TextAnchor { Start, Middle, End };

struct Font {
    std::string family = "sans-serif";
    double size = 16.0;
    bool bold = false;
    bool italic = false;
    bool operator==(const Font&) const = default;
};

using Properties = std::map<std::string, std::string>;

/// The style of one element, its ancestors' taken into account. Lengths are user units of the
/// element.
struct Style {
    // Handed down to children.
    Colour color; ///< What "currentColor" stands for.
    Paint fill{Paint::Kind::Plain, {}, false, {}};
    Paint stroke;
    double fillOpacity = 1.0;
    double strokeOpacity = 1.0;
    double strokeWidth = 1.0;
    double miterLimit = 4.0;
    double dashOffset = 0.0;
    std::vector<double> dashes; ///< Of even length; empty: not dashed.
    Cap cap = Cap::Butt;
    Join join = Join::Miter;
    bool evenOdd = false;
    bool clipEvenOdd = false;
    bool visible = true;
    Font font;
    TextAnchor anchor = TextAnchor::Start;
    /// Every property that an ancestor or the element itself gives and that children take over, as
    /// text, whether it is understood or not. Shared between elements that give none.
    std::shared_ptr<const Properties> inherited;

    // The element's own.
    double opacity = 1.0;
    bool displayed = true;
    std::string clipPath; ///< An id; empty: none.
    Colour stopColour;
    double stopOpacity = 1.0;
    Properties others; ///< What is not understood and not handed down, such as a filter.
    /// Values of understood properties that are beyond us. They change nothing; those that children
    /// take over are handed down.
    Properties unknown;
};

struct PropertyValue;

/// A property that may stand as an attribute of its own.
struct Property {
    std::string_view name;
    bool understood = false; ///< Written anew, not copied.
    bool inherited = false;
    bool text = false;        ///< Matters to text alone.
    std::string_view initial; ///< Where nothing says otherwise; empty where that matters to nobody.
    /// False for a value that is not understood, which changes nothing; null: it is kept as text.
    bool (*set)(const PropertyValue&) = nullptr;
};
/// One without a name where there is none of that name.
[[nodiscard]] const Property& propertyNamed(std::string_view name);

/// The style of an element with these properties, a child of one with style `parent`. `viewport` is
/// what percentages of lengths refer to.
[[nodiscard]] Style styleOf(const Properties& properties, const Style& parent, double viewport);

/// "url(#id)", with or without quotes, as "id"; empty when it refers to nothing in this file.
[[nodiscard]] std::string referenceIn(std::string_view text);

} // namespace easel::svg
