#include "easel/document/Document.h"

#include "easel/document/Bezier.h"
#include "easel/document/Layers.h"
#include "easel/document/Session.h"
#include "easel/document/TransformArt.h"

#include <cmath>
#include <utility>

namespace easel {
namespace {

constexpr AIReal kOutputResolution = 800;

AIDocumentSetup setupOf(AISize artboard) noexcept {
    AIDocumentSetup setup{};
    setup.width = artboard.width;
    setup.height = artboard.height;
    setup.showPlacedImages = 1;
    setup.outputResolution = kOutputResolution;
    return setup;
}

/// In hard coordinates; whole points, so that going from soft to hard loses as little as possible.
AIRealPoint artboardCorner(const AIDocumentSetup& setup) noexcept {
    return {std::floor((kCanvasSide - setup.width) / 2),
            std::floor((kCanvasSide - setup.height) / 2)};
}

} // namespace

Definition::Definition(Session& session, Kind kind, std::string id)
    : session_(session), kind_(kind), id_(std::move(id)),
      handle_(session.handles.add(HandleKind::Definition, this)) {}

Definition::~Definition() { session_.handles.remove(handle_); }

struct Document::StateKept final : KeptState {
    explicit StateKept(Document& changed) : document(&changed), state(changed.state_) {}
    void exchange() override {
        const Art* layerBefore = document->state_.currentLayer;
        std::swap(document->state_, state);
        if (document->state_.currentLayer != layerBefore)
            document->note(&DocumentChanges::currentLayer);
    }
    Document* document;
    DocumentState state;
};

Document::Document(Session& session, AISize artboard, FirstLayer firstLayer)
    : session_(session),
      handle_(static_cast<AIDocumentHandle>(session.handles.add(HandleKind::Document, this))),
      undo_(std::make_shared<UndoLog>(*this)), recorded_(new Dictionary), other_(new Dictionary) {
    state_.setup = setupOf(artboard);
    state_.rulerOrigin = artboardCorner(state_.setup);
    state_.initialStyle.write().path = initialPathStyle();
    recorded_->attach(undo_);
    root_ = &makeRoot(*this);
    if (firstLayer == FirstLayer::Yes)
        setCurrentLayer(*this, createLayer(*this, "Layer 1", atBottomOf(*root_)));
    changes_ = {};
    modified_ = false;
}

Document::~Document() {
    if (session_.current == this) session_.current = nullptr;
    undo_->detach();
    freeTree(*root_);
    session_.handles.remove(handle_);
}

DocumentState& Document::writeState() {
    if (undo_->mustKeep(stateKeptIn_)) undo_->keep(std::make_unique<StateKept>(*this));
    modified_ = true;
    return state_;
}

AIRealRect Document::artboard() const noexcept {
    const AIRealPoint corner = artboardCorner(state_.setup);
    const AIReal left = corner.h - state_.rulerOrigin.h;
    const AIReal top = state_.rulerOrigin.v - corner.v;
    return {left, top, left + state_.setup.width, top - state_.setup.height};
}

AIRealRect Document::canvas() const noexcept {
    const AIRealPoint origin = state_.rulerOrigin;
    return {-origin.h, origin.v, kCanvasSide - origin.h, origin.v - kCanvasSide};
}

void Document::setRulerOrigin(AIRealPoint origin) {
    const AIRealPoint before = state_.rulerOrigin;
    if (same(origin, before)) return;
    const AIRealMatrix shift{1, 0, 0, 1, before.h - origin.h, origin.v - before.v};
    constexpr ai::int32 kEverything = kTransformObjects | kTransformFillGradients |
                                      kTransformFillPatterns | kTransformStrokePatterns |
                                      kTransformStrokeGradients;
    for (Art* art = root_; art != nullptr; art = nextInPreorder(*art, *root_))
        transformObject(*art, shift, 1, kEverything, Edit::Quiet);
    writeState().rulerOrigin = origin;
    note(&DocumentChanges::rulerOrigin);
}

Definition& Document::addDefinition(Definition::Kind kind, std::string id) {
    return *definitions_.emplace_back(std::make_unique<Definition>(session_, kind, std::move(id)));
}

DocumentChanges Document::takeChanges() noexcept { return std::exchange(changes_, {}); }

void Document::note(bool DocumentChanges::*what) noexcept {
    changes_.*what = true;
    modified_ = true;
}

AIRealPoint harden(const Document& document, AIRealPoint soft) noexcept {
    const AIRealPoint origin = document.state().rulerOrigin;
    return {origin.h + soft.h, origin.v - soft.v};
}

AIRealPoint soften(const Document& document, AIRealPoint hard) noexcept {
    const AIRealPoint origin = document.state().rulerOrigin;
    return {hard.h - origin.h, origin.v - hard.v};
}

} // namespace easel
