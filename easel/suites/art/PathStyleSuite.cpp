#include "host/suites/AIPathStyleSuite.h"

#include "easel/core/Expose.h"
#include "easel/document/Session.h"
#include "easel/suites/art/ArtSuites.h"

#include <algorithm>

namespace easel {
namespace {

Art& styledArt(AIArtHandle handle) {
    constexpr ai::int16 kStyled[] = {kPathArt, kCompoundPathArt, kRasterArt,
                                     kMeshArt, kPlacedArt,       kTextFrameArt};
    Art& art = styleHolder(session().artOf(handle));
    if (std::ranges::find(kStyled, art.type()) == std::end(kStyled))
        throw ai::Error{kBadParameterErr};
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

AIPathStyle getPathStyle(AIArtHandle art) {
    const ArtStyle& own = styledArt(art).style();
    AIPathStyle told = own.path;
    tellDefinition(told.fill.color, own.fillDefinition, own.fillMatrix);
    tellDefinition(told.stroke.color, own.strokeDefinition, own.strokeMatrix);
    return told;
}

} // namespace

void installPathStyleSuite(SuiteServer& server) {
    expose<&AIPathStyleSuite::GetPathStyle, getPathStyle>(server);
}

} // namespace easel
