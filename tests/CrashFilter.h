/// What a test program does when it crashes.
#pragma once

namespace facetta::tests {

/// The exit status of a test program that crashed on Windows.
constexpr int kCrashed = 70;

/// On Windows: a crash of this program prints one line on standard error and ends it with
/// `kCrashed`; left alone, a debugger would be started and the test hang until its time is up.
/// On Linux: nothing; the signal ends the program, or a sanitizer reports it.
void installCrashFilter();

} // namespace facetta::tests
