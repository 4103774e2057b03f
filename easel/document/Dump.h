#pragma once

#include <string>

namespace easel {

class Document;

/// Everything that a document holds, as text: one line an object, indented by its depth, then what
/// it carries. Two documents with equal dumps are equal; handles and time stamps do not take part.
[[nodiscard]] std::string dump(const Document& document);

} // namespace easel
