#pragma once

#include "easel/core/Ledger.h"
#include "host/FilePath.h"

#include <filesystem>

namespace easel {

/// The path behind `path`, in the notation of this system; empty for an object never set. Throws
/// 'PARM' when it is not one of ours or was deleted.
[[nodiscard]] std::filesystem::path readPath(Ledger& ledger, const ai::FilePath& path);
/// Makes the object when there is none; the ledger then has it on loan.
void writePath(Ledger& ledger, ai::FilePath& path, std::filesystem::path value);
void deletePath(Ledger& ledger, ai::FilePath& path);

} // namespace easel
