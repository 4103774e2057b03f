#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <variant>

namespace NRDM {

using Bytes = std::span<const std::byte>;

/// What a resource is called by: a number, or a name in capitals.
using ResourceName = std::variant<int, std::u16string>;

/// One resource of a file; `data` lies in the file's bytes.
struct Resource {
    ResourceName type;
    ResourceName name;
    Bytes data;
};

/// Walks the resources of a compiled resource file: the form that resource compilers write and
/// linkers take in. A file that is cut off or contradicts itself ends where it does.
///
///     for (ResourceFile file(bytes); const auto resource = file.next();) ...
class ResourceFile {
public:
    explicit ResourceFile(Bytes bytes) : rest_(bytes) {}

    /// Nothing at the end.
    [[nodiscard]] std::optional<Resource> next();

private:
    Bytes rest_;
};

} // namespace NRDM
