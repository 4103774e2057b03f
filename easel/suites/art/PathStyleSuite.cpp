#include "host/suites/AIPathStyleSuite.h"

#include "easel/core/Arguments.h"
#include "easel/core/Expose.h"
#include "easel/document/Attributes.h"
#include "easel/document/Session.h"
#include "easel/suites/art/ArtSuites.h"

namespace easel {
namespace {

bool hasStyle(const Art& art) {
    switch (art.type()) {
    case kPathArt:
    case kCompoundPathArt:
    case kRasterArt:
    case kMeshArt:
    case kPlacedArt:
    case kTextFrameArt:
        return true;
    default:
        return false;
    }
}

Art& styledArt(AIArtHandle handle) {
    Art& art = styleCarrier(artOf(handle));
    if (!hasStyle(art)) throw ai::Error{kBadParameterErr};
    return art;
}

/// A colour that refers to a definition tells its handle and matrix.
void tellDefinition(AIColor& color, const Definition* definition, const AIRealMatrix& matrix) {
    if (definition == nullptr) return;
    if (definition->kind() == Definition::Kind::Gradient) {
        color.kind = kGradient;
        color.c.b = {};
        color.c.b.gradient = static_cast<AIGradientHandle>(definition->handle());
        color.c.b.matrix = matrix;
    } else {
        color.kind = kPattern;
        color.c.p = {};
        color.c.p.pattern = static_cast<AIPatternHandle>(definition->handle());
        color.c.p.transform = matrix;
    }
}

struct DefinitionUse {
    const Definition* definition;
    AIRealMatrix matrix;
};

/// The other way round; throws 'PARM' for a handle that is none of ours.
DefinitionUse definitionIn(const AIColor& color) {
    if (color.kind != kGradient && color.kind != kPattern) return {nullptr, kIdentityMatrix};
    const bool isGradient = color.kind == kGradient;
    const void* handle = isGradient ? static_cast<const void*>(color.c.b.gradient)
                                    : static_cast<const void*>(color.c.p.pattern);
    void* found = session().handles.find(HandleKind::Definition, handle);
    if (found == nullptr) throw ai::Error{kBadParameterErr};
    return {static_cast<const Definition*>(found),
            isGradient ? color.c.b.matrix : color.c.p.transform};
}

AIErr getPathStyle(AIArtHandle art, AIPathStyle* style) {
    const ArtStyle& own = styledArt(art).style();
    AIPathStyle told = own.path;
    tellDefinition(told.fill.color, own.fillDefinition, own.fillMatrix);
    tellDefinition(told.stroke.color, own.strokeDefinition, own.strokeMatrix);
    required(style) = told;
    return kNoErr;
}

AIErr setPathStyle(AIArtHandle handle, const AIPathStyle* style) {
    const AIPathStyle& wanted = required(style);
    Art& art = styledArt(handle);
    checkEditable(art);
    const DefinitionUse fill = definitionIn(wanted.fill.color);
    const DefinitionUse stroke = definitionIn(wanted.stroke.color);
    ArtStyle& own = art.write().style.write();
    own.path = wanted;
    own.fillDefinition = fill.definition;
    own.fillMatrix = fill.matrix;
    own.strokeDefinition = stroke.definition;
    own.strokeMatrix = stroke.matrix;
    own.longDash.clear();
    return kNoErr;
}

AIErr getInitialPathStyle(AIPathStyle* style) {
    required(style) = currentDocument().state().initialStyle->path;
    return kNoErr;
}

AIErr setInitialPathStyle(const AIPathStyle* style) {
    const AIPathStyle& wanted = required(style);
    currentDocument().writeState().initialStyle.write().path = wanted;
    return kNoErr;
}

} // namespace

void installPathStyleSuite(SuiteServer& server) {
    using S = AIPathStyleSuite;
    auto table = server.table<S>(kAIPathStyleSuite, kAIPathStyleSuiteVersion);
    expose<&S::GetPathStyle, getPathStyle>(table);
    expose<&S::SetPathStyle, setPathStyle>(table);
    expose<&S::GetInitialPathStyle, getInitialPathStyle>(table);
    expose<&S::SetInitialPathStyle, setInitialPathStyle>(table);
}

} // namespace easel
