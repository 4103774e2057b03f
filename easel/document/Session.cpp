#include "easel/document/Session.h"

#include "host/Error.h"

namespace easel {

Session& session() noexcept {
    static Session theSession;
    return theSession;
}

void startStamps() noexcept {
    session().lastStamp = 0;
    session().subtreeStamps = {};
}

Document& currentDocument() {
    if (session().current == nullptr) throw ai::Error{kNoDocumentErr};
    return *session().current;
}

void setCurrentDocument(Document* document) noexcept { session().current = document; }

Art* findArt(AIArtHandle handle) noexcept {
    auto* art = static_cast<Art*>(session().handles.find(HandleKind::Art, handle));
    // Only the document's root hangs on nothing, and it is no art that anyone is told of.
    return art != nullptr && art->isAlive() && art->parent() != nullptr ? art : nullptr;
}

Art& artOf(AIArtHandle handle) {
    Art* art = findArt(handle);
    if (art == nullptr) throw ai::Error{kBadParameterErr};
    return *art;
}

Art& layerOf(AILayerHandle handle) {
    if (HandleTable::kindOf(handle) != HandleKind::Layer) throw ai::Error{kBadParameterErr};
    const void* group = HandleTable::withKind(handle, HandleKind::Art);
    auto* art = static_cast<Art*>(session().handles.find(HandleKind::Art, group));
    if (art == nullptr || !art->isAlive() || !art->isLayer()) throw ai::Error{kBadParameterErr};
    return *art;
}

void endMessageLoans() { session().messageLoans.clear(); }

} // namespace easel
