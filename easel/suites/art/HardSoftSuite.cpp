#include "host/suites/AIHardSoftSuite.h"

#include "easel/core/Arguments.h"
#include "easel/core/Expose.h"
#include "easel/document/HardSoft.h"
#include "easel/document/Session.h"
#include "easel/suites/art/ArtSuites.h"

namespace easel {
namespace {

/// The only coordinate system that Easel has.
constexpr ai::int32 kDocumentCoordinates = 0;

// Source and destination may be one point.

AIErr pointHarden(AIRealPoint* source, AIRealPoint* destination) {
    required(destination) = harden(currentDocument(), required(source));
    return kNoErr;
}

AIErr pointSoften(AIRealPoint* source, AIRealPoint* destination) {
    required(destination) = soften(currentDocument(), required(source));
    return kNoErr;
}

void setTranslation(AIRealMatrix& matrix, AIRealPoint point) {
    matrix.tx = point.h;
    matrix.ty = point.v;
}

AIErr matrixHarden(AIRealMatrix* matrix) {
    AIRealMatrix& changed = required(matrix);
    setTranslation(changed, harden(currentDocument(), {changed.tx, changed.ty}));
    return kNoErr;
}

AIErr matrixSoften(AIRealMatrix* matrix) {
    AIRealMatrix& changed = required(matrix);
    setTranslation(changed, soften(currentDocument(), {changed.tx, changed.ty}));
    return kNoErr;
}

AIErr matrixRealHard(AIRealMatrix* matrix) {
    required(matrix) = hardMatrix(currentDocument(), *matrix);
    return kNoErr;
}

AIErr matrixRealSoft(AIRealMatrix* matrix) {
    required(matrix) = softMatrix(currentDocument(), *matrix);
    return kNoErr;
}

AIErr getCoordinateSystem(ai::int32& system) {
    system = kDocumentCoordinates;
    return kNoErr;
}

AIErr setCoordinateSystem(ai::int32 system) {
    return system == kDocumentCoordinates ? kNoErr : kNotImplementedErr;
}

AIErr convertCoordinates(AIRealPoint& /*point*/, ai::int32 from, ai::int32 to,
                         AIBoolean /*forDisplay*/) {
    const bool same = from == kDocumentCoordinates && to == kDocumentCoordinates;
    return same ? kNoErr : kNotImplementedErr;
}

} // namespace

void installHardSoftSuite(SuiteServer& server) {
    using S = AIHardSoftSuite;
    auto table = server.table<S>(kAIHardSoftSuite, kAIHardSoftSuiteVersion);
    expose<&S::AIRealPointHarden, pointHarden>(table);
    expose<&S::AIRealPointSoften, pointSoften>(table);
    expose<&S::AIRealMatrixHarden, matrixHarden>(table);
    expose<&S::AIRealMatrixSoften, matrixSoften>(table);
    expose<&S::AIRealMatrixRealHard, matrixRealHard>(table);
    expose<&S::AIRealMatrixRealSoft, matrixRealSoft>(table);
    expose<&S::GetCoordinateSystem, getCoordinateSystem>(table);
    expose<&S::SetCoordinateSystem, setCoordinateSystem>(table);
    expose<&S::ConvertCoordinates, convertCoordinates>(table);
}

} // namespace easel
