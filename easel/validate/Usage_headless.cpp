#include "easel/validate/Usage.h"

#include <malloc.h>

namespace easel::validate {

Usage usage() {
    const struct mallinfo2 heap = mallinfo2();
    return {heap.uordblks + heap.hblkhd, 0};
}

} // namespace easel::validate
