#pragma once

#include "host/Types.h"

namespace ai {

/// A path of the host: one pointer that only the host's file-path suite looks behind. Crosses the
/// interface by address. Throws `Error` when the host cannot make one.
class FilePath {
public:
    FilePath();
    FilePath(const FilePath& other);
    FilePath(FilePath&& other) noexcept;
    FilePath& operator=(FilePath other) noexcept;
    ~FilePath();

private:
    void* impl_ = nullptr;
};

static_assert(sizeof(FilePath) == 8);

} // namespace ai
