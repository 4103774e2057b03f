#pragma once

#include "easel/core/OutputFile.h"
#include "easel/document/Document.h"

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

/// Drawings in files: SVG in, SVG out.
///
/// One user unit of the drawing is one point of the document. The drawing's y runs downwards, the
/// document's upwards, and the ruler origin lies at the drawing's (0, 0), the top left corner of
/// the artboard unless a viewBox says otherwise: soft = (x, -y).
///
/// The text that a drawing was read from is kept. Saving writes it back: a drawing that nobody has
/// changed is the same text, byte by byte. What was changed is set in its element, what is new is
/// written in the coordinates of the place where it lies.
namespace easel::svg {

using easel::FileError;

struct OpenedDrawing {
    std::unique_ptr<Document> document;
    /// What was understood only in part, one line each: "FILE:LINE: ...".
    std::vector<std::string> warnings;
};

/// A document of `session`. Throws FileError.
[[nodiscard]] OpenedDrawing readSvg(Session& session, const std::filesystem::path& file);
/// The same for a text; `name` is what messages call it.
[[nodiscard]] OpenedDrawing readSvgText(Session& session, std::string text,
                                        const std::string& name);

/// The drawing as a text. `warnings` gets what is left out, one line each: "LINE: ...".
[[nodiscard]] std::string svgText(const Document& document,
                                  std::vector<std::string>* warnings = nullptr);

} // namespace easel::svg
