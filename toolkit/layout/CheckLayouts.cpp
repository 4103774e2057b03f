/// check_layouts FILE...
///
/// Reads layout texts as the plug-in will and says what is wrong with them. Exit status 0 when
/// nothing is, 1 when anything is, warnings included: what is passed over in a dialog on screen
/// is a mistake in a text of our own.

#include "toolkit/layout/Layout.h"

#include <cstdio>
#include <fstream>
#include <iterator>

namespace {

using namespace NRDM::layout;

/// Whether there is nothing to say about `file`; says it otherwise.
bool isFlawless(const char* file) {
    std::ifstream stream(file, std::ios::binary);
    if (!stream) {
        std::fprintf(stderr, "%s: cannot be read\n", file);
        return false;
    }
    const std::string text{std::istreambuf_iterator<char>(stream), {}};
    const Messages messages = parse(text).messages;
    for (const Message& message : messages)
        std::fprintf(stderr, "%s\n", format(message, file).c_str());
    return messages.empty();
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 2) {
        std::fprintf(stderr, "usage: check_layouts FILE...\n");
        return 2;
    }
    bool flawless = true;
    for (int i = 1; i < argc; ++i)
        flawless = isFlawless(argv[i]) && flawless;
    return flawless ? 0 : 1;
}
