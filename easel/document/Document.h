#pragma once

#include "easel/document/ArtTree.h"
#include "easel/document/UndoLog.h"

#include <filesystem>

namespace easel {

/// A side of the square canvas, in points.
inline constexpr AIReal kCanvasSide = 16383;

/// A gradient, pattern or symbol that art refers to. The room that read it knows its content.
class Definition {
public:
    enum class Kind : std::uint8_t { Gradient, Pattern, Symbol };

    Definition(Session& session, Kind kind, std::string id);
    ~Definition();
    Definition(const Definition&) = delete;
    Definition& operator=(const Definition&) = delete;

    [[nodiscard]] Kind kind() const noexcept { return kind_; }
    [[nodiscard]] const std::string& id() const noexcept { return id_; }
    /// An `AIGradientHandle` or `AIPatternHandle`.
    [[nodiscard]] void* handle() const noexcept { return handle_; }

    AIRealRect box{0, 0, 0, 0}; ///< What a symbol covers, in its own space.
    std::shared_ptr<const ForeignContent> content;

private:
    Session& session_;
    Kind kind_;
    std::string id_;
    void* handle_;
};

/// What of a document besides its art is undone with it.
struct DocumentState {
    AIDocumentSetup setup;
    /// Where soft (0, 0) lies on the canvas: hard coordinates, y down from the top left corner.
    AIRealPoint rulerOrigin;
    Art* currentLayer = nullptr;
    Cow<ArtStyle> initialStyle; ///< Of new paths.
};

/// What has happened to a document; the host tells plug-ins about it when it is idle.
struct DocumentChanges {
    bool art = false;
    bool selection = false;
    bool layerSet = false;
    bool layerDeleted = false;
    bool layerOptions = false;
    bool currentLayer = false;
    bool rulerOrigin = false;

    [[nodiscard]] bool any() const noexcept {
        return art || selection || layerSet || layerDeleted || layerOptions || currentLayer ||
               rulerOrigin;
    }
};

enum class FirstLayer : std::uint8_t { No, Yes };

/// A drawing: layers of art on an artboard, dictionaries, and how it came about.
///
/// Art is stored in soft coordinates, y upwards, relative to the ruler origin, which starts at the
/// top left corner of the artboard. The artboard lies in the middle of the canvas.
///
/// Layers are groups: children of `root`, top-most first, and of each other, among other art.
class Document {
public:
    /// `artboard` in points. With a first layer it is called "Layer 1" and is current; without one
    /// the caller makes layers before anything else happens.
    explicit Document(Session& session, AISize artboard, FirstLayer firstLayer = FirstLayer::Yes);
    ~Document();
    Document(const Document&) = delete;
    Document& operator=(const Document&) = delete;

    [[nodiscard]] Session& session() const noexcept { return session_; }
    [[nodiscard]] AIDocumentHandle handle() const noexcept { return handle_; }
    [[nodiscard]] Art& root() const noexcept { return *root_; }
    [[nodiscard]] UndoLog& undo() const noexcept { return *undo_; }
    [[nodiscard]] const std::shared_ptr<UndoLog>& sharedUndo() const noexcept { return undo_; }

    [[nodiscard]] const DocumentState& state() const noexcept { return state_; }
    /// For writing; the former state is kept for undo.
    [[nodiscard]] DocumentState& writeState();

    /// The artboard in soft coordinates.
    [[nodiscard]] AIRealRect artboard() const noexcept;
    /// The whole canvas in soft coordinates.
    [[nodiscard]] AIRealRect canvas() const noexcept;
    /// `origin` in hard coordinates. All art keeps its place on the canvas, so that its soft
    /// coordinates change.
    void setRulerOrigin(AIRealPoint origin);

    /// Saved and undone.
    [[nodiscard]] Dictionary& recordedDictionary() const noexcept { return *recorded_; }
    /// Saved, but not undone.
    [[nodiscard]] Dictionary& otherDictionary() const noexcept { return *other_; }

    /// Definitions are made when a drawing is read, and live as long as the document.
    Definition& addDefinition(Definition::Kind kind, std::string id);
    [[nodiscard]] std::span<const std::unique_ptr<Definition>> definitions() const noexcept {
        return definitions_;
    }

    [[nodiscard]] const DocumentChanges& changes() const noexcept { return changes_; }
    /// What has happened since the last call.
    [[nodiscard]] DocumentChanges takeChanges() noexcept;
    /// Adds to `changes`, and marks the document modified.
    void note(bool DocumentChanges::*what) noexcept;

    [[nodiscard]] bool isModified() const noexcept { return modified_; }
    void setModified(bool modified) noexcept { modified_ = modified; }

    std::filesystem::path path; ///< Empty: never saved.
    /// Pixels per point in the view last zoomed: tolerances of hit tests are given in pixels.
    AIReal viewZoom = 1;
    ai::int16 rulerUnits = kPointsUnits;
    ai::int16 colorModel = 1; ///< 0 gray, 1 RGB, 2 CMYK.
    /// What the reader of the drawing keeps of it.
    std::shared_ptr<const ForeignContent> foreign;

private:
    struct StateKept;

    Session& session_;
    AIDocumentHandle handle_;
    std::shared_ptr<UndoLog> undo_;
    DocumentState state_;
    Art* root_ = nullptr;
    Ref<Dictionary> recorded_;
    Ref<Dictionary> other_;
    std::vector<std::unique_ptr<Definition>> definitions_;
    DocumentChanges changes_;
    std::uint64_t stateKeptIn_ = 0;
    bool modified_ = false;
};

// Between soft (page, y up, from the ruler origin) and hard (canvas, y down, from its top left
// corner) coordinates.

[[nodiscard]] AIRealPoint harden(const Document& document, AIRealPoint soft) noexcept;
[[nodiscard]] AIRealPoint soften(const Document& document, AIRealPoint hard) noexcept;

} // namespace easel
