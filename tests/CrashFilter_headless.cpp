#include "tests/CrashFilter.h"

void facetta::tests::installCrashFilter() {}
