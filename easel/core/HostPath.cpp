#include "easel/core/HostPath.h"

#include <memory>
#include <utility>

namespace easel {
namespace {

using Path = std::filesystem::path;

void*& pointerIn(ai::FilePath& path) { return reinterpret_cast<void*&>(path); }

Path* pathObject(Ledger& ledger, const ai::FilePath& path) {
    void* const object = reinterpret_cast<void* const&>(path);
    if (object != nullptr) ledger.require(Lent::FilePath, object);
    return static_cast<Path*>(object);
}

} // namespace

Path readPath(Ledger& ledger, const ai::FilePath& path) {
    const Path* const object = pathObject(ledger, path);
    return object == nullptr ? Path{} : *object;
}

void writePath(Ledger& ledger, ai::FilePath& path, Path value) {
    if (Path* const object = pathObject(ledger, path)) {
        *object = std::move(value);
        return;
    }
    auto object = std::make_unique<Path>(std::move(value));
    ledger.lend(Lent::FilePath, object.get());
    pointerIn(path) = object.release();
}

void deletePath(Ledger& ledger, ai::FilePath& path) {
    void* const object = std::exchange(pointerIn(path), nullptr);
    if (object == nullptr) return;
    ledger.takeBack(Lent::FilePath, object);
    delete static_cast<Path*>(object);
}

} // namespace easel
