#include "easel/cli/Terminal.h"

#include <unistd.h>

namespace easel {

std::vector<std::string> utf8Arguments(int count, char** arguments) {
    return {arguments, arguments + count};
}

bool errorIsTerminal() noexcept { return isatty(STDERR_FILENO) != 0; }

} // namespace easel
