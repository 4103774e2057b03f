#define DOCTEST_CONFIG_IMPLEMENT
#define DOCTEST_CONFIG_NO_POSIX_SIGNALS // the sanitizers' own report names the line that crashed
#define DOCTEST_CONFIG_NO_WINDOWS_SEH   // see tests/CrashFilter.h
#include "tests/CrashFilter.h"
#include "tests/Seed.h"

#include <doctest/doctest.h>

#include <cstdio>

int main(int argc, char** argv) {
    facetta::tests::installCrashFilter();
    doctest::Context context(argc, argv);
    std::printf("seed %llu (FACETTA_SEED sets another)\n",
                static_cast<unsigned long long>(facetta::tests::seed()));
    std::fflush(stdout);
    return context.run();
}
