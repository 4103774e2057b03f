#include "resources/Embedded.h"

// The assembler takes the file in; as an array in C++ it would take the compiler seconds.
asm(R"(
    .section .rodata
    .balign 8
    .globl facettaResources
    .hidden facettaResources
    .globl facettaResourcesEnd
    .hidden facettaResourcesEnd
facettaResources:
    .incbin "Facetta.res"
facettaResourcesEnd:
    .previous
)");

extern "C" {
extern const std::byte facettaResources[];
extern const std::byte facettaResourcesEnd[];
}

namespace facetta {

std::span<const std::byte> embeddedResources() noexcept {
    return {facettaResources, facettaResourcesEnd};
}

} // namespace facetta
