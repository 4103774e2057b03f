#include "easel/core/HostPath.h"

#include "easel/core/HostObject.h"

namespace easel {

using Path = std::filesystem::path;

Path readPath(Ledger& ledger, const ai::FilePath& path) {
    const Path* const object = objectIn<Path, Lent::FilePath>(ledger, path);
    return object == nullptr ? Path{} : *object;
}

void writePath(Ledger& ledger, ai::FilePath& path, Path value) {
    setObject<Path, Lent::FilePath>(ledger, path, std::move(value));
}

void deletePath(Ledger& ledger, ai::FilePath& path) {
    destroyObject<Path, Lent::FilePath>(ledger, path);
}

} // namespace easel
