#include "easel/document/UndoLog.h"

#include "easel/document/Session.h"
#include "host/Error.h"

#include <algorithm>
#include <cassert>
#include <utility>

namespace easel {
namespace {

/// Steps that can be undone; deleted art of older ones is freed.
constexpr std::size_t kMostRecords = 200;

} // namespace

struct UndoLog::ContentState final : KeptState {
    explicit ContentState(Art& changed)
        : art(&changed), content(changed.content_), stamp(changed.stamp_) {}
    void exchange() override {
        std::swap(art->content_, content);
        exchangeStamp(*art, stamp);
    }
    static void exchangeStamp(Art& art, std::uint64_t& kept) {
        if (kept == art.stamp_) return;
        std::swap(art.stamp_, kept);
        Session& session = art.session();
        if (!session.switches.undoRestoresStamps) art.stamp_ = ++session.lastStamp;
    }
    Art* art;
    ArtContent content;
    std::uint64_t stamp;
};

struct UndoLog::LinksState final : KeptState {
    explicit LinksState(Art& moved) : art(&moved), links(moved.links_), stamp(moved.stamp_) {}
    void exchange() override {
        std::swap(art->links_, links);
        ContentState::exchangeStamp(*art, stamp);
    }
    Art* art;
    Art::Links links;
    std::uint64_t stamp;
};

UndoLog::UndoLog(Document& document) noexcept
    : session_(document.session()), document_(&document) {}

UndoLog::~UndoLog() { detach(); }

void UndoLog::open() {
    if (depth_++ == 0) epoch_ = ++session_.lastEpoch;
}

void UndoLog::close() {
    assert(depth_ > 0);
    if (depth_ > 1) {
        --depth_;
        return;
    }
    dropBriefLives();
    depth_ = 0;
    Record record = std::exchange(open_, Record{});
    if (record.steps.empty()) return;
    if (record.kind == kSilentUndoContext)
        record.madeBeforeRedo = !future_.empty();
    else
        discardFuture();
    past_.push_back(std::move(record));
    limitHistory();
}

void UndoLog::dropBriefLives() {
    // An object made and disposed of in one record was never there for undo.
    std::erase_if(open_.steps, [this](const Step& step) {
        if (step.lives == nullptr || step.lives->alive_ || step.lives->madeIn_ != epoch_)
            return false;
        releaseLife(*step.lives);
        return true;
    });
}

void UndoLog::revert() {
    if (depth_ == 0) return;
    takeBack(open_);
    forget(open_);
    open_.steps.clear();
    epoch_ = ++session_.lastEpoch;
}

void UndoLog::setKind(AIUndoContextKind kind) noexcept {
    if (depth_ > 0) open_.kind = kind;
}

void UndoLog::setTexts(std::string undo, std::string redo) {
    open_.undoText = std::move(undo);
    open_.redoText = std::move(redo);
}

bool UndoLog::isOwnStep(const Record& record) const noexcept {
    return record.kind == kStandardUndoContext ||
           (record.kind == kSilentUndoContext && !session_.switches.silentFollowsStep);
}

bool UndoLog::undo() {
    if (depth_ > 0 ||
        std::ranges::none_of(past_, [this](const Record& record) { return isOwnStep(record); }))
        return false;
    for (bool stepTaken = false; !stepTaken; past_.pop_back()) {
        stepTaken = isOwnStep(past_.back());
        takeBack(past_.back());
        future_.push_back(std::move(past_.back()));
    }
    noteEverything();
    return true;
}

bool UndoLog::redo() {
    if (depth_ > 0 || future_.empty()) return false;
    // Silent changes made since the undo lie between; they go, so that the step meets the state
    // that it was made in.
    while (!past_.empty() && past_.back().madeBeforeRedo) {
        takeBack(past_.back());
        forget(past_.back());
        past_.pop_back();
    }
    do {
        bringBack(future_.back());
        past_.push_back(std::move(future_.back()));
        future_.pop_back();
    } while (!future_.empty() && !isOwnStep(future_.back()) && !future_.back().madeBeforeRedo);
    noteEverything();
    return true;
}

ai::int32 UndoLog::pastSteps() const noexcept {
    return static_cast<ai::int32>(std::ranges::count(past_, kStandardUndoContext, &Record::kind));
}

ai::int32 UndoLog::futureSteps() const noexcept {
    return static_cast<ai::int32>(std::ranges::count(future_, kStandardUndoContext, &Record::kind));
}

std::string UndoLog::lastText(const std::deque<Record>& records, std::string Record::*text) {
    const auto last = std::find_if(records.rbegin(), records.rend(), [](const Record& record) {
        return record.kind == kStandardUndoContext;
    });
    return last != records.rend() ? (*last).*text : std::string();
}

std::string UndoLog::undoText() const { return lastText(past_, &Record::undoText); }

std::string UndoLog::redoText() const { return lastText(future_, &Record::redoText); }

void UndoLog::clear() {
    discardFuture();
    for (Record& record : past_)
        forget(record);
    past_.clear();
}

void UndoLog::detach() {
    clear();
    forget(open_);
    open_ = Record{};
    depth_ = 0;
    document_ = nullptr;
}

bool UndoLog::recording() {
    if (depth_ > 0) return true;
    if (session_.changesNeedContext && session_.calls.current() != nullptr)
        throw ai::Error{kNoDocumentErr};
    if (!past_.empty() || !future_.empty()) clear();
    return false;
}

bool UndoLog::mustKeep(std::uint64_t& keptIn) {
    return recording() && std::exchange(keptIn, epoch_) != epoch_;
}

void UndoLog::keep(std::unique_ptr<KeptState> state) {
    open_.steps.push_back({nullptr, std::move(state)});
}

void UndoLog::keepContent(Art& art) {
    if (!recording() || art.madeIn_ == epoch_ || art.contentKeptIn_ == epoch_) return;
    art.contentKeptIn_ = epoch_;
    keep(std::make_unique<ContentState>(art));
}

void UndoLog::keepLinks(Art& art) {
    if (!recording() || art.madeIn_ == epoch_ || art.linksKeptIn_ == epoch_) return;
    art.linksKeptIn_ = epoch_;
    keep(std::make_unique<LinksState>(art));
}

void UndoLog::noteMade(Art& art) {
    if (!recording()) return;
    art.madeIn_ = epoch_;
    keepLife(art);
}

void UndoLog::noteDisposed(Art& art) {
    art.alive_ = false;
    if (recording())
        keepLife(art);
    else
        delete &art;
}

void UndoLog::keepLife(Art& art) {
    ++art.undoReferences_;
    open_.steps.push_back({&art, nullptr});
}

void UndoLog::releaseLife(Art& art) {
    if (--art.undoReferences_ == 0 && !art.alive_) delete &art;
}

void UndoLog::exchange(Step& step) {
    ++session_.exchanges;
    if (step.lives != nullptr)
        step.lives->alive_ = !step.lives->alive_;
    else
        step.state->exchange();
}

void UndoLog::takeBack(Record& record) {
    for (auto step = record.steps.rbegin(); step != record.steps.rend(); ++step)
        exchange(*step);
}

void UndoLog::bringBack(Record& record) {
    for (Step& step : record.steps)
        exchange(step);
}

void UndoLog::forget(Record& record) {
    for (Step& step : record.steps)
        if (step.lives != nullptr) releaseLife(*step.lives);
}

void UndoLog::discardFuture() {
    for (Record& record : future_)
        forget(record);
    future_.clear();
}

void UndoLog::limitHistory() {
    while (past_.size() > kMostRecords) {
        forget(past_.front());
        past_.pop_front();
    }
}

void UndoLog::noteEverything() {
    for (const auto what : {&DocumentChanges::art, &DocumentChanges::selection,
                            &DocumentChanges::layerSet, &DocumentChanges::layerOptions})
        document_->note(what);
}

} // namespace easel
