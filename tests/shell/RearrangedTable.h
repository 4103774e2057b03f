#pragma once

#include "easel/core/SuiteServer.h"
#include "easel/suites/Suites.h"

#include <algorithm>
#include <span>
#include <vector>

namespace facetta::tests {

/// Another order of one suite's slots, as other builds of the host may have it, for the length of a
/// test.
class RearrangedTable {
public:
    template <typename Rearrange>
    RearrangedTable(const char* suite, ai::int32 version, std::size_t size, Rearrange rearrange)
        : slots_(slotsOf(suite, version), size / sizeof(void*)),
          original_(slots_.begin(), slots_.end()) {
        rearrange(slots_);
    }
    ~RearrangedTable() { std::ranges::copy(original_, slots_.begin()); }
    RearrangedTable(const RearrangedTable&) = delete;
    RearrangedTable& operator=(const RearrangedTable&) = delete;

private:
    static void** slotsOf(const char* suite, ai::int32 version) {
        // The host's tables are constant for its plug-ins only.
        void* const table =
            const_cast<void*>(easel::sessionWithSuites().suites.functions(suite, version));
        return static_cast<void**>(table);
    }

    std::span<void*> slots_;
    std::vector<void*> original_;
};

} // namespace facetta::tests
