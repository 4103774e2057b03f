#include "tests/CrashFilter.h"

#include <windows.h>

#include <cstdio>

namespace facetta::tests {
namespace {

// TerminateProcess, because an ordinary exit would run destructors over the broken state.
LONG WINAPI reportCrash(EXCEPTION_POINTERS* exception) {
    const EXCEPTION_RECORD& record = *exception->ExceptionRecord;
    std::fflush(stdout);
    std::fprintf(stderr, "crashed: exception 0x%08lx at %p\n", record.ExceptionCode,
                 record.ExceptionAddress);
    std::fflush(stderr);
    TerminateProcess(GetCurrentProcess(), kCrashed);
    return EXCEPTION_EXECUTE_HANDLER;
}

} // namespace

void installCrashFilter() { SetUnhandledExceptionFilter(reportCrash); }

} // namespace facetta::tests
