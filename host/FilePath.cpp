#include "host/FilePath.h"

#include "host/Error.h"
#include "host/Suites.h"
#include "host/suites/AIFilePathSuite.h"

#include <utility>

namespace ai {

FilePath::FilePath() { check(suites.filePath->NewFilePath(*this)); }

FilePath::FilePath(const FilePath& other) : FilePath() {
    check(suites.filePath->Copy(other, *this)); // the source comes first in this call
}

FilePath::FilePath(FilePath&& other) noexcept : impl_(std::exchange(other.impl_, nullptr)) {}

FilePath& FilePath::operator=(FilePath other) noexcept {
    std::swap(impl_, other.impl_);
    return *this;
}

FilePath::~FilePath() {
    if (impl_ != nullptr && suites.filePath != nullptr) suites.filePath->DeleteFilePath(*this);
}

} // namespace ai
