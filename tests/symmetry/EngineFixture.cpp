#include "tests/symmetry/EngineFixture.h"

#include "easel/core/Expose.h"
#include "easel/core/Ledger.h"
#include "easel/document/Attributes.h"
#include "easel/document/Dump.h"
#include "easel/document/Layers.h"
#include "easel/document/Session.h"
#include "easel/suites/art/ArtSuites.h"
#include "easel/suites/runtime/RuntimeSuites.h"
#include "easel/svg/SvgFile.h"
#include "host/Error.h"
#include "host/SuiteTable.h"
#include "host/Suites.h"
#include "host/suites/AIAppContextSuite.h"
#include "host/suites/AIDocumentViewSuite.h"
#include "host/suites/AIToolSuite.h"
#include "symmetry/ArtSpace.h"
#include "symmetry/LiveLayers.h"

#include <doctest/doctest.h>

namespace facetta::tests {
namespace {

using easel::Art;

AIErr allowAllChanges(AIBoolean allow, AIBoolean* previous) {
    *previous = easel::session().allowAllChanges;
    easel::session().allowAllChanges = allow != 0;
    return kNoErr;
}

AIErr viewZoom(AIDocumentViewHandle, AIReal* zoom) {
    *zoom = EngineFixture::shellSide().zoom;
    return kNoErr;
}

AIErr currentToolName(const char** name) {
    *name = EngineFixture::shellSide().currentTool.c_str();
    return kNoErr;
}

AIErr selectTool(AIToolHandle) {
    EngineFixture::shellSide().chosenTools.push_back("own");
    return kNoErr;
}

AIErr selectToolByName(const char* name) {
    EngineFixture::shellSide().chosenTools.push_back(name);
    return kNoErr;
}

void exposeShellSide(easel::SuiteServer& server) {
    auto contexts = server.table<AIAppContextSuite>(kAIAppContextSuite, kAIAppContextSuiteVersion);
    easel::expose<&AIAppContextSuite::AllowAllChanges, allowAllChanges>(contexts);
    auto views =
        server.table<AIDocumentViewSuite>(kAIDocumentViewSuite, kAIDocumentViewSuiteVersion);
    easel::expose<&AIDocumentViewSuite::GetDocumentViewZoom, viewZoom>(views);
    auto tools = server.table<AIToolSuite>(kAIToolSuite, kAIToolSuiteVersion);
    easel::expose<&AIToolSuite::GetCurrentToolName, currentToolName>(tools);
    easel::expose<&AIToolSuite::SetSelectedTool, selectTool>(tools);
    easel::expose<&AIToolSuite::SetSelectedToolByName, selectToolByName>(tools);
}

ai::int16 typeNamed(char letter) {
    switch (letter) {
    case 'g':
    case 'k':
        return kGroupArt;
    case 'c':
        return kCompoundPathArt;
    case 'p':
        return kPluginArt;
    case 't':
        return kTextFrameArt;
    case 's':
        return kSymbolArt;
    case 'i':
        return kRasterArt;
    default:
        return kPathArt;
    }
}

constexpr const char* kMirrorKey = "FTMirroredv1";

ai::int32 mirrorTag(const Art& art) {
    const easel::Dictionary* entries = art.dictionaryIfAny();
    const easel::Value* value =
        entries != nullptr ? entries->find(easel::internKey(kMirrorKey)) : nullptr;
    const auto* tag = value != nullptr ? std::get_if<ai::int32>(value) : nullptr;
    return tag != nullptr ? *tag : 0;
}

void setMirrorTag(Art& art, ai::int32 tag) {
    art.dictionary().set(easel::internKey(kMirrorKey), easel::Value{tag});
}

void setAttribute(Art& art, AIArtUserAttr attribute) {
    art.write().attributes |= static_cast<std::uint32_t>(attribute);
}

const Art& membersOf(const Art& container) {
    return container.type() == kPluginArt ? *easel::editArt(container) : container;
}

} // namespace

/// Reads the notation from front to back.
struct EngineFixture::Notation {
    std::string_view rest;
    EngineFixture& fixture;
    int paths = 0;

    void objects(Art& parent) {
        while (!rest.empty() && rest.front() != ')') {
            if (rest.front() == ' ')
                rest.remove_prefix(1);
            else
                object(parent);
        }
    }

    void object(Art& parent) {
        const std::string_view flags = upTo(rest.find_first_not_of("#-~!%^@"));
        const std::string name{upTo(rest.find_first_of("( )'"))};
        Art& art = make(parent, name);
        if (!name.starts_with('l')) art.write().details.write().name = name;
        if (rest.starts_with('\'')) {
            rest.remove_prefix(1);
            setMirrorTag(art, 1);
            setAttribute(art, kArtLocked);
        }
        if (rest.starts_with('(')) {
            rest.remove_prefix(1);
            objects(const_cast<Art&>(membersOf(art)));
            rest.remove_prefix(1);
        }
        for (const char flag : flags)
            apply(flag, art);
    }

    Art& make(Art& parent, const std::string& name) {
        easel::Document& document = fixture.document();
        if (name.starts_with('l'))
            return easel::createLayer(document, name, easel::atBottomOf(parent));
        const ai::int16 type = typeNamed(name.front());
        if (type == kPathArt) {
            const double x = 20.0 + 30.0 * paths++;
            return fixture.addPath(parent, {{x, 20}, {x + 15, 20}, {x + 10, 40}}, true);
        }
        Art& art = easel::createArt(document, type, easel::atBottomOf(parent));
        if (name.starts_with('k')) art.write().clipped = true;
        if (type == kSymbolArt)
            art.write().details.write().symbol =
                &document.addDefinition(easel::Definition::Kind::Symbol, name);
        return art;
    }

    static void apply(char flag, Art& art) {
        switch (flag) {
        case '#':
            return setAttribute(art, kArtLocked);
        case '-':
            return setAttribute(art, kArtHidden);
        case '!':
            return setAttribute(art, kArtIsClipMask);
        case '~':
            art.write().guide = true;
            return;
        case '%':
            return setMirrorTag(art, 1);
        case '^':
            return setMirrorTag(art, 2);
        case '@':
            return easel::select(art, true);
        default:
            FAIL("no such flag: ", flag);
        }
    }

    std::string_view upTo(std::size_t length) {
        const std::string_view part = rest.substr(0, length);
        rest.remove_prefix(part.size());
        return part;
    }
};

ShellSide& EngineFixture::shellSide() {
    static ShellSide shellSide;
    return shellSide;
}

EngineFixture::EngineFixture(easel::Switches switches) {
    shellSide() = {};
    easel::session().switches = switches; // before the suites, whose slots depend on them
    easel::SuiteServer& server = easel::session().suites;
    easel::installArtSuites(server);
    easel::installDocumentSuite(server);
    easel::installUnicodeStringSuite(server);
    exposeShellSide(server);
    for (const ai::SuiteRow& row : ai::suiteTable())
        row.store(server.functions(row.name, row.version));
    document_ = std::make_unique<easel::Document>(easel::session(), AISize{800, 600});
    easel::session().current = document_.get();
}

EngineFixture::~EngineFixture() {
    CHECK(easel::session().ledger.outstanding().empty());
    CHECK(easel::session().ledger.problems().empty());
    easel::session().ledger.clear();
    easel::session().current = nullptr;
    document_.reset();
    easel::session().switches = {};
    ai::suites = {};
}

easel::Art& EngineFixture::layer() { return *document_->root().firstChild(); }

AILayerHandle EngineFixture::layerHandle() { return easel::layerHandle(&layer()); }

void EngineFixture::build(Art& parent, std::string_view notation) {
    step([&] { Notation{notation, *this}.objects(parent); });
}

std::string EngineFixture::notationOf(const Art& parent) {
    std::string text;
    for (const Art* art = parent.firstChild(); art != nullptr; art = art->next()) {
        if (!text.empty()) text += ' ';
        const ai::int32 tag = mirrorTag(*art);
        const bool isCopy = tag == 1 && art->has(kArtLocked);
        if (art->has(kArtLocked) && !isCopy) text += '#';
        if (art->has(kArtHidden)) text += '-';
        if (art->has(kArtIsClipMask)) text += '!';
        if (art->content().guide) text += '~';
        if (tag == 1 && !isCopy) text += '%';
        if (tag == 2) text += '^';
        text += art->isLayer() ? art->details().layer.title : art->details().name;
        if (isCopy) text += '\'';
        if (easel::isContainer(*art)) text += '(' + notationOf(membersOf(*art)) + ')';
    }
    return text;
}

std::string EngineFixture::text() const {
    std::string text = easel::dump(*document_);
    for (std::size_t at = text.find("entry \"ts\""); at != std::string::npos;
         at = text.find("entry \"ts\""))
        text.erase(at, text.find('\n', at) - at);
    return text;
}

easel::Art& EngineFixture::addPath(Art& parent, const std::vector<Point>& points, bool closed) {
    Art& path = easel::createArt(*document_, kPathArt, easel::atBottomOf(parent));
    easel::ArtContent& content = path.write();
    content.closed = closed;
    for (const Point point : points) {
        const AIRealPoint at = narrow(point);
        content.segments.write().push_back({at, at, at, true});
    }
    return path;
}

easel::Art& EngineFixture::addTooLongPath() {
    std::vector<Point> points;
    for (int i = 0; i < 16'002; ++i)
        points.push_back({i * 0.1, 0.2 * (i % 7) * (i > 0)});
    points.front() = {-5, 0};
    points.back().y = 0.0;
    return addPath(layer(), points, false);
}

void EngineFixture::setAxes(int count, double angle, Point origin) {
    const Point hard = harden(origin);
    axes = {.originX = hard.x, .originY = hard.y, .angle = angle, .axisCount = count};
}

MirrorEnvironment EngineFixture::environment() {
    return {.currentAxes = axes,
            .live = live,
            .removePoints = removePoints,
            .ownTool = ownTool,
            .showMessage = [this](std::string_view text) { messages.emplace_back(text); }};
}

void EngineFixture::reopen(Host host) {
    const std::string saved = easel::svg::svgText(*document_);
    if (host == Host::StartsAgain) {
        easel::session().current = nullptr;
        document_.reset();
        easel::session().startStamps();
        live = {};
    }
    easel::svg::OpenedDrawing again = easel::svg::readSvgText(easel::session(), saved, "again");
    document_ = std::move(again.document);
    easel::session().current = document_.get();
}

void EngineFixture::step(const std::function<void()>& changes) {
    struct Record {
        explicit Record(easel::UndoLog& log) : log_(log) { log_.open(); }
        ~Record() {
            log_.close();
            easel::session().allowAllChanges = false;
            easel::session().messageLoans.clear();
        }
        easel::UndoLog& log_;
    };
    const Record record{document_->undo()};
    changes();
}

void EngineFixture::mirrorSelection() {
    step([this] { MirrorEngine{environment()}.run(true, false, false, nullptr); });
}

void EngineFixture::attach(bool autoMirror) {
    step([&] { attachAxes(axes, environment(), autoMirror); });
}

void EngineFixture::regenerate() {
    step([this] { regenerateLayer(environment(), false, layerHandle()); });
}

} // namespace facetta::tests
