#pragma once

#include "easel/document/ArtStyle.h"
#include "easel/document/Cow.h"
#include "easel/document/Dictionary.h"
#include "host/Art.h"
#include "host/Handles.h"

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace easel {

class Document;

/// What makes a group a layer. Whether it is visible and editable is said by the hidden and locked
/// attribute of the group itself.
struct LayerProperties {
    std::string title; ///< UTF-8.
    AIRGBColor color{0x4F4F, 0x8080, 0xFFFF};
    bool preview = true;
    bool printed = true;
    bool dimPlacedImages = false;
    bool isTemplate = false;
    ai::int32 dimmedPercent = 50;
};

/// What few objects have.
struct ArtDetails {
    std::string name; ///< UTF-8; empty: the default name.
    std::string note; ///< UTF-8.
    /// Text, images, instances and opaque art: what they show fills `box` of a space of their own,
    /// and the matrix takes that space to soft coordinates.
    AIRealMatrix matrix = kIdentityMatrix;
    AIRealRect box{0, 0, 0, 0};
    const Definition* symbol = nullptr; ///< Of a symbol instance.
    std::shared_ptr<const ForeignContent> foreign;
    LayerProperties layer; ///< Of a layer's group.
};

using Segments = std::vector<AIPathSegment>;
/// One `AISegmentSelection` an anchor.
using SegmentSelections = std::vector<std::uint8_t>;

/// Everything of an object that editing changes, but not its place in the tree. Copies are cheap.
struct ArtContent {
    /// The object's own `AIArtUserAttr` bits: locked, hidden, expanded, targeted, clip mask, text
    /// wrap, style dirty; of leaves also selected and fully selected. A container's selection is
    /// that of what it contains.
    std::uint32_t attributes = 0;
    bool closed = false;  ///< Of a path.
    bool guide = false;   ///< Of a path.
    bool clipped = false; ///< Of a group: its clip masks clip it.
    bool isLayerGroup = false;
    Cow<Segments> segments;
    /// Of a path that is selected in part; all others have none, their attributes say all.
    Cow<SegmentSelections> segmentSelection;
    Cow<ArtStyle> style;
    Cow<ArtDetails> details;
    Cow<std::string> id; ///< In its drawing, UTF-8; copies have none.
};

/// What writing to an object counts as.
enum class Edit : std::uint8_t {
    Art,       ///< An edit of the art: it gets a new time stamp.
    Selection, ///< A change of the selection only.
    Quiet,     ///< Neither; still a change that is undone.
};

/// One object of the art tree.
///
/// Objects are made, moved and removed by the functions of ArtTree.h. Everything that changes one
/// keeps its former state in the document's undo log first. An object that was removed lives on,
/// not alive, while the log can bring it back.
class Art {
public:
    [[nodiscard]] ai::int16 type() const noexcept { return type_; }
    [[nodiscard]] Document& document() const noexcept { return *document_; }
    [[nodiscard]] Session& session() const noexcept;
    [[nodiscard]] AIArtHandle handle() const noexcept { return handle_; }
    [[nodiscard]] bool isAlive() const noexcept { return alive_; }

    /// Null for the document's root and for what hangs on nothing. The parent of a top-level
    /// layer's group is the root. Edit and result group are the two children of a plug-in group.
    [[nodiscard]] Art* parent() const noexcept { return links_.parent; }
    [[nodiscard]] Art* firstChild() const noexcept { return links_.firstChild; } ///< Front-most.
    [[nodiscard]] Art* lastChild() const noexcept { return links_.lastChild; }
    [[nodiscard]] Art* next() const noexcept { return links_.next; }         ///< The next behind.
    [[nodiscard]] Art* previous() const noexcept { return links_.previous; } ///< The next in front.

    [[nodiscard]] const ArtContent& content() const noexcept { return content_; }
    /// The content for writing. Its former state is kept for undo; the document is modified.
    [[nodiscard]] ArtContent& write(Edit edit = Edit::Art);

    [[nodiscard]] std::span<const AIPathSegment> segments() const noexcept {
        return *content_.segments;
    }
    [[nodiscard]] const ArtStyle& style() const noexcept { return *content_.style; }
    [[nodiscard]] const ArtDetails& details() const noexcept { return *content_.details; }
    [[nodiscard]] bool isLayer() const noexcept { return content_.isLayerGroup; }
    [[nodiscard]] bool has(AIArtUserAttr attribute) const noexcept {
        return (content_.attributes & static_cast<std::uint32_t>(attribute)) != 0;
    }

    /// Null when nothing was ever stored.
    [[nodiscard]] const Dictionary* dictionaryIfAny() const noexcept { return dictionary_.get(); }
    /// Made on demand; that alone is no change of the document.
    [[nodiscard]] Dictionary& dictionary();

    /// When the object itself was last edited: a counter that grows with every edit.
    [[nodiscard]] std::uint64_t stamp() const noexcept { return stamp_; }
    /// Gives the object a new time stamp.
    void touch();

private:
    friend class ArtTreeAccess; ///< ArtTree.cpp: makes, links and frees objects.
    friend class UndoLog;

    struct Links {
        Art* parent = nullptr;
        Art* firstChild = nullptr;
        Art* lastChild = nullptr;
        Art* next = nullptr;
        Art* previous = nullptr;
    };

    Art(Document& document, ai::int16 type);
    ~Art();

    Links links_;
    ArtContent content_;
    Ref<Dictionary> dictionary_;
    Document* document_;
    AIArtHandle handle_;
    std::uint64_t stamp_ = 0;
    /// Epochs of the undo log in which the former state was kept, and in which the object was made.
    std::uint64_t contentKeptIn_ = 0;
    std::uint64_t linksKeptIn_ = 0;
    std::uint64_t madeIn_ = 0;
    std::uint32_t undoReferences_ = 0; ///< Steps of the undo log that make it live or die.
    ai::int16 type_;
    bool alive_ = true;
};

} // namespace easel
