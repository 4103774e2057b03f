#pragma once

#include "easel/core/HostCalls.h"
#include "easel/core/Ledger.h"
#include "easel/core/SuiteServer.h"
#include "easel/document/Document.h"
#include "easel/document/HandleTable.h"
#include "easel/document/MessageLoans.h"
#include "easel/document/Switches.h"

#include <unordered_map>
#include <vector>

namespace easel {

/// Answers of `subtreeStamp`, good until a time stamp is given or undo puts back a former one. They
/// make it cheap to be asked again whether a large layer has changed.
struct SubtreeStamps {
    std::uint64_t lastStamp = 0;
    std::uint64_t exchanges = 0;
    std::unordered_map<const Art*, std::uint64_t> answers;
};

/// The answer of `selectedMatches`, good until art or selection changes: programs ask again and
/// again.
struct KnownSelection {
    const Document* document = nullptr;
    std::uint64_t lastStamp = 0;
    std::uint64_t exchanges = 0;
    std::uint64_t selections = 0;
    std::vector<Art*> art;
};

class Host;

/// What belongs to no single document. Whoever works on the host or its documents is handed it, or
/// finds it in its document; only the suites, which are plain functions that carry nothing with
/// them, ask for the one of this process.
struct Session {
    Session() = default;
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    HostCalls calls;
    Ledger ledger{calls};
    SuiteServer suites{calls};
    HandleTable handles;
    Switches switches;
    /// The host that runs, if any does: documents can be read and written without one.
    Host* host = nullptr;
    /// The document that calls without a document mean.
    Document* current = nullptr;
    /// The last time stamp given. It starts at 0 with every host.
    std::uint64_t lastStamp = 0;
    /// States that undo has put back.
    std::uint64_t exchanges = 0;
    SubtreeStamps subtreeStamps;
    /// Changes of the selection.
    std::uint64_t selections = 0;
    KnownSelection selection;
    /// The last epoch of any undo log.
    std::uint64_t lastEpoch = 0;
    /// Set by the current context: changes under locked or hidden parents are allowed.
    bool allowAllChanges = false;
    /// Set by the current context: the kind of the undo step cannot be chosen.
    bool contextIsNested = false;
    /// Plug-ins may change documents within a context only. Set while a host runs, which makes
    /// them.
    bool changesNeedContext = false;
    MessageLoans messageLoans{*this};
    /// The handles of dictionary keys; they live as long as the host.
    std::unordered_map<Key, void*> keyHandles;

    /// A host has started: time stamps begin anew. There may be no document.
    void startStamps() noexcept;
    /// The current one. Throws 'DOC?' when there is none.
    [[nodiscard]] Document& document() const;
    /// The live object behind a handle. A null, stale, dead or invented one is refused: throws
    /// 'PARM'.
    [[nodiscard]] Art& artOf(AIArtHandle handle) const;
    /// The same of one type; others are refused as well.
    [[nodiscard]] Art& artOf(AIArtHandle handle, ai::int16 type) const;
    /// Null unless `handle` is that of a live object.
    [[nodiscard]] Art* findArt(AIArtHandle handle) const noexcept;
    /// The layer's group; throws 'PARM'.
    [[nodiscard]] Art& layerOf(AILayerHandle handle) const;
    /// The counted object of that kind. A null, stale or invented handle is noted in the ledger and
    /// refused: throws 'PARM'.
    [[nodiscard]] Counted& counted(HandleKind kind, Lent loan, const void* handle);
};

/// The session of this process. For suites, and for programs and tests to begin with.
[[nodiscard]] Session& session() noexcept;

} // namespace easel
