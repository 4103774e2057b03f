#pragma once

#include "easel/document/Document.h"
#include "easel/document/HandleTable.h"
#include "easel/document/MessageLoans.h"
#include "easel/document/Switches.h"

#include <unordered_map>

namespace easel {

/// Answers of `subtreeStamp`, good until a time stamp is given or undo puts back a former one. They
/// make it cheap to be asked again whether a large layer has changed.
struct SubtreeStamps {
    std::uint64_t lastStamp = 0;
    std::uint64_t exchanges = 0;
    std::unordered_map<const Art*, std::uint64_t> answers;
};

/// What the art side of the host keeps besides its documents: one per process, because the suites
/// are plain functions that carry nothing with them.
struct Session {
    HandleTable handles;
    Switches switches;
    /// The document that calls without a document mean; set with `setCurrentDocument`.
    Document* current = nullptr;
    /// The last time stamp given. It starts at 0 in every session.
    std::uint64_t lastStamp = 0;
    /// States that undo has put back.
    std::uint64_t exchanges = 0;
    SubtreeStamps subtreeStamps;
    /// The last epoch of any undo log.
    std::uint64_t lastEpoch = 0;
    /// Set by the current context: changes under locked or hidden parents are allowed.
    bool allowAllChanges = false;
    /// Set by the current context: the kind of the undo step cannot be chosen.
    bool contextIsNested = false;
    /// Plug-ins may change documents within a context only. Set while a host runs, which makes
    /// them.
    bool changesNeedContext = false;
    MessageLoans messageLoans;
    /// The handles of dictionary keys; they live as long as the host.
    std::unordered_map<Key, void*> keyHandles;
};

[[nodiscard]] Session& session() noexcept;
[[nodiscard]] inline Switches& switches() noexcept { return session().switches; }

/// A host has started: time stamps begin anew. There may be no document.
void startStamps() noexcept;

/// Throws 'DOC?' when there is none.
[[nodiscard]] Document& currentDocument();
/// Null: none is current.
void setCurrentDocument(Document* document) noexcept;

/// The live object behind a handle. A null, stale, dead or invented one is refused: throws 'PARM'.
[[nodiscard]] Art& artOf(AIArtHandle handle);
/// Null unless `handle` is that of a live object.
[[nodiscard]] Art* findArt(AIArtHandle handle) noexcept;
/// The layer's group; throws 'PARM'.
[[nodiscard]] Art& layerOf(AILayerHandle handle);

/// Drops what lives for one message only: leftover hits, strings handed out of entries. To be
/// called when the outermost message has ended.
void endMessageLoans();

} // namespace easel
