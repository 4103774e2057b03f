#include "host/suites/AIRealMathSuite.h"

#include "easel/core/Expose.h"
#include "easel/suites/art/ArtSuites.h"

namespace easel {
namespace {

void matrixSet(AIRealMatrix* m, AIReal a, AIReal b, AIReal c, AIReal d, AIReal tx, AIReal ty) {
    required(m) = {a, b, c, d, tx, ty};
}

} // namespace

void installRealMathSuite(SuiteServer& server) {
    expose<&AIRealMathSuite::AIRealMatrixSet, matrixSet>(server);
}

} // namespace easel
