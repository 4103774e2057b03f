#include "easel/document/HardSoft.h"

namespace easel {

AIRealPoint harden(const Document& document, AIRealPoint soft) noexcept {
    const AIRealPoint origin = document.state().rulerOrigin;
    return {origin.h + soft.h, origin.v - soft.v};
}

AIRealPoint soften(const Document& document, AIRealPoint hard) noexcept {
    const AIRealPoint origin = document.state().rulerOrigin;
    return {hard.h - origin.h, origin.v - hard.v};
}

AIRealMatrix hardMatrix(const Document& document, AIRealMatrix soft) noexcept {
    const AIRealPoint moved = harden(document, {soft.tx, soft.ty});
    return {soft.a, -soft.b, -soft.c, soft.d, moved.h, moved.v};
}

AIRealMatrix softMatrix(const Document& document, AIRealMatrix hard) noexcept {
    const AIRealPoint moved = soften(document, {hard.tx, hard.ty});
    return {hard.a, -hard.b, -hard.c, hard.d, moved.h, moved.v};
}

} // namespace easel
