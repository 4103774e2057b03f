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

} // namespace easel
