#include "easel/document/Session.h"

#include "host/Error.h"

namespace easel {

Session& session() noexcept {
    static Session theSession;
    return theSession;
}

void Session::startStamps() noexcept {
    lastStamp = 0;
    subtreeStamps = {};
    selection = {};
}

Document& Session::document() const {
    if (current == nullptr) throw ai::Error{kNoDocumentErr};
    return *current;
}

Art* Session::findArt(AIArtHandle handle) const noexcept {
    auto* art = static_cast<Art*>(handles.find(HandleKind::Art, handle));
    // Only the document's root hangs on nothing, and it is no art that anyone is told of.
    return art != nullptr && art->isAlive() && art->parent() != nullptr ? art : nullptr;
}

Art& Session::artOf(AIArtHandle handle) const {
    Art* art = findArt(handle);
    if (art == nullptr) throw ai::Error{kBadParameterErr};
    return *art;
}

Art& Session::artOf(AIArtHandle handle, ai::int16 type) const {
    Art& art = artOf(handle);
    if (art.type() != type) throw ai::Error{kBadParameterErr};
    return art;
}

Art& Session::layerOf(AILayerHandle handle) const {
    if (HandleTable::kindOf(handle) != HandleKind::Layer) throw ai::Error{kBadParameterErr};
    const void* group = HandleTable::withKind(handle, HandleKind::Art);
    auto* art = static_cast<Art*>(handles.find(HandleKind::Art, group));
    if (art == nullptr || !art->isAlive() || !art->isLayer()) throw ai::Error{kBadParameterErr};
    return *art;
}

Counted& Session::counted(HandleKind kind, Lent loan, const void* handle) {
    void* object = handles.find(kind, handle);
    if (object == nullptr) {
        if (handle != nullptr) ledger.require(loan, handle);
        throw ai::Error{kBadParameterErr};
    }
    return *static_cast<Counted*>(object);
}

} // namespace easel
