#include "host/Error.h"

#include <new>

namespace ai {

AIErr currentErrorCode() noexcept {
    try {
        throw;
    } catch (const Error& error) {
        return error.code;
    } catch (const std::bad_alloc&) {
        return kOutOfMemoryErr;
    } catch (...) {
        return kCantHappenErr;
    }
}

} // namespace ai
