#include "easel/document/Art.h"

#include "easel/document/Session.h"

namespace easel {

Art::Art(Document& document, ai::int16 type)
    : document_(&document),
      handle_(static_cast<AIArtHandle>(document.session().handles.add(HandleKind::Art, this))),
      stamp_(++document.session().lastStamp), type_(type) {}

Session& Art::session() const noexcept { return document_->session(); }

Art::~Art() { session().handles.remove(handle_); }

ArtContent& Art::write(Edit edit) {
    document_->undo().keepContent(*this);
    if (edit == Edit::Art) stamp_ = ++session().lastStamp;
    if (edit == Edit::Selection) ++session().selections;
    document_->note(edit == Edit::Selection ? &DocumentChanges::selection : &DocumentChanges::art);
    return content_;
}

void Art::touch() {
    document_->undo().keepLinks(*this);
    stamp_ = ++session().lastStamp;
    document_->note(&DocumentChanges::art);
}

Dictionary& Art::dictionary() {
    if (!dictionary_) {
        dictionary_ = Ref<Dictionary>(new Dictionary);
        dictionary_->attach(document_->sharedUndo());
        dictionary_->noteMadeIn(madeIn_);
    }
    return *dictionary_;
}

} // namespace easel
