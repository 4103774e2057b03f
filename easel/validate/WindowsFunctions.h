#pragma once

namespace easel::validate {

/// The text of cmake/windows-functions.txt.
[[nodiscard]] const char* windowsFunctions();

} // namespace easel::validate
