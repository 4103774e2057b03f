#pragma once

#include "toolkit/ImplCommon/Exceptions.h"

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

namespace NRDM {

/// Objects that clients ask for and give back; what is left goes with this.
template <typename Object> class Lent {
public:
    template <typename... Arguments> Object* make(Arguments&&... arguments) {
        return objects_
            .emplace_back(std::make_unique<Object>(std::forward<Arguments>(arguments)...))
            .get();
    }

    /// Throws `NRDMParameterException` for one that is not, or no longer, among them. Only its
    /// address is looked at.
    template <typename Reference> void drop(const Reference& object) {
        const auto found = std::ranges::find_if(objects_, [&](const auto& each) {
            return static_cast<const Reference*>(each.get()) == &object;
        });
        if (found == objects_.end()) throw NRDMParameterException();
        objects_.erase(found);
    }

private:
    std::vector<std::unique_ptr<Object>> objects_;
};

} // namespace NRDM
