#pragma once

#include "easel/document/Document.h"

#include <filesystem>
#include <memory>
#include <ostream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

/// Drawings in files: SVG in, SVG out.
///
/// One user unit of the drawing is one point of the document. The drawing's y runs downwards, the
/// document's upwards, and the ruler origin lies at the drawing's (0, 0), the top left corner of
/// the artboard unless a viewBox says otherwise: soft = (x, -y).
///
/// What is not understood (definitions, metadata, foreign elements and attributes, comments, what
/// comes before the drawing) is kept and written back as it stood, where it stood.
namespace easel::svg {

/// What is wrong with a file, in one line: "FILE:LINE: what is wrong; what would be right".
struct FileError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

struct OpenedDrawing {
    std::unique_ptr<Document> document;
    /// What was understood only in part, one line each: "FILE:LINE: ...".
    std::vector<std::string> warnings;
};

/// Throws FileError.
[[nodiscard]] OpenedDrawing readSvg(const std::filesystem::path& file);
/// The same for a text; `name` is what messages call it.
[[nodiscard]] OpenedDrawing readSvgText(std::string text, const std::string& name);

/// Writes the file whole or not at all: into a temporary file beside it, which then takes its
/// place. Throws FileError.
void writeSvg(const Document& document, const std::filesystem::path& file);
void writeSvg(const Document& document, std::ostream& out);
/// The same as a text.
[[nodiscard]] std::string svgText(const Document& document);

} // namespace easel::svg
