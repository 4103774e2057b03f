#pragma once

#include "easel/svg/Content.h"

#include <functional>
#include <map>
#include <set>
#include <string>
#include <tuple>
#include <vector>

namespace easel::svg {

/// Gives out ids for definitions made anew: gradients and patterns whose matrix differs from what
/// their element says, because the art that they paint was copied or transformed.
class DerivedServers {
public:
    DerivedServers(const Document& document, Point offset);

    /// What a paint property says: "url(#id)".
    [[nodiscard]] std::string reference(const Definition& definition, const AIRealMatrix& matrix);
    /// The elements for all references given out so far, one a line.
    [[nodiscard]] const std::string& elements() const { return elements_; }

    /// The next id of that family that the drawing neither gives nor refers to.
    [[nodiscard]] std::string newId(const char* family, int& counter) const;

private:
    void appendElement(const std::string& id, const Definition& definition,
                       const AIRealMatrix& matrix);

    std::set<std::string, std::less<>> reserved_;
    Point offset_;
    std::string elements_;
    int counter_ = 0;
    using Place = std::tuple<const Definition*, AIReal, AIReal, AIReal, AIReal, AIReal, AIReal>;
    std::map<Place, std::string> ids_;
};

/// Which properties are written: those that differ from what SVG starts with, or all, where style
/// sheets may say otherwise.
enum class Explicit { No, Yes };

struct PropertyText {
    const char* name;
    std::string value;
};

/// The fill, stroke and opacity of a shape, without what is kept as text.
[[nodiscard]] std::vector<PropertyText> styleText(const ArtStyle& style, Explicit all,
                                                  DerivedServers& servers);

} // namespace easel::svg
