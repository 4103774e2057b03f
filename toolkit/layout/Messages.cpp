#include "toolkit/layout/Messages.h"

namespace NRDM::layout {

std::string format(const Message& message, std::string_view source) {
    const char* severity = message.severity == Severity::Error ? "error" : "warning";
    return std::string(source) + '(' + std::to_string(message.position.line) + ',' +
           std::to_string(message.position.column) + "): " + severity + ": " + message.text;
}

} // namespace NRDM::layout
