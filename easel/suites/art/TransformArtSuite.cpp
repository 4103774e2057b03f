#include "host/suites/AITransformArtSuite.h"

#include "easel/core/Expose.h"
#include "easel/document/Attributes.h"
#include "easel/document/Session.h"
#include "easel/document/TransformArt.h"
#include "easel/suites/art/ArtSuites.h"

#include <algorithm>
#include <cmath>

namespace easel {
namespace {

bool isFinite(const AIRealMatrix& m) {
    return std::ranges::all_of(std::initializer_list<AIReal>{m.a, m.b, m.c, m.d, m.tx, m.ty},
                               [](AIReal number) { return std::isfinite(number); });
}

void transform(AIArtHandle handle, AIRealMatrix* matrix, AIReal lineScale, ai::int32 flags) {
    Art& art = session().artOf(handle);
    if (!isFinite(required(matrix)) || !std::isfinite(lineScale)) throw ai::Error{kBadParameterErr};
    checkEditable(art);
    if (!session().switches.transformReachesMembers) flags &= ~kTransformChildren;
    if ((flags & kTransformChildren) != 0) checkContents(art);
    transformArt(art, *matrix, lineScale, flags);
}

} // namespace

void installTransformArtSuite(SuiteServer& server) {
    expose<&AITransformArtSuite::TransformArt, transform>(server);
}

} // namespace easel
