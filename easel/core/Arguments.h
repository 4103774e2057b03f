#pragma once

#include "host/Error.h"

namespace easel {

/// What a pointer argument that must not be null leads to; throws 'PARM' when it is null.
template <typename Value> [[nodiscard]] Value& required(Value* argument) {
    if (argument == nullptr) throw ai::Error{kBadParameterErr};
    return *argument;
}

} // namespace easel
