#pragma once

namespace easel {

class SuiteServer;

/// Every suite that Easel has, ready for a host to offer. Tables are made once and never move,
/// because the functions in them exist once in a process.
[[nodiscard]] SuiteServer& installedSuites();

} // namespace easel
