#pragma once

#include "easel/core/Registry.h"
#include "easel/document/Document.h"
#include "host/Handles.h"

namespace easel {

/// A window on a document. Its own coordinates are pixels from its top left corner, y down.
struct DocumentView {
    Document* document;
    AIRealPoint centre; ///< Soft coordinates of what lies in the middle.
    AIReal zoom = 1;    ///< Pixels per point.
    ai::int32 width = 1280;
    ai::int32 height = 800;
};

/// The windows, one a document.
class Views : public Registry<AIDocumentViewHandle, DocumentView> {
public:
    explicit Views(const Session& session) noexcept : session_(session) {}

    /// Shows the document's artboard in the middle of a new window.
    void open(Document& document);
    /// That of the current document; null when there is none.
    [[nodiscard]] AIDocumentViewHandle current() const;
    /// Null means the current one. Throws 'DOC?' when there is none, 'PARM' for a dead one.
    [[nodiscard]] DocumentView& shown(AIDocumentViewHandle view) const;

private:
    const Session& session_;
};

inline constexpr AIReal kLeastZoom = 1.0F / 32;
inline constexpr AIReal kMostZoom = 64;

[[nodiscard]] AIRealPoint toView(const DocumentView& view, AIRealPoint artwork) noexcept;
[[nodiscard]] AIRealPoint toArtwork(const DocumentView& view, AIRealPoint pixels) noexcept;
/// To the nearest pixel.
[[nodiscard]] AIPoint toViewPixel(const DocumentView& view, AIRealPoint artwork) noexcept;
/// What the window shows, in soft coordinates: top above bottom.
[[nodiscard]] AIRealRect visibleArtwork(const DocumentView& view) noexcept;
/// The centre stays; `zoom` is brought into range.
void setZoom(DocumentView& view, AIReal zoom) noexcept;

} // namespace easel
