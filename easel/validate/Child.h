#pragma once

#include <chrono>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace easel::validate {

/// This program once more, in a process of its own whose crash harms nobody else. What it writes is
/// read line by line.
class Child {
public:
    /// Throws std::system_error when the system starts none.
    explicit Child(const std::vector<std::string>& arguments);
    /// Ends it if it still runs.
    ~Child();
    Child(const Child&) = delete;
    Child& operator=(const Child&) = delete;

    enum class State : std::uint8_t { Line, Ended, Silent };
    /// The next line, once there is one; `Silent` when none comes in `patience`.
    [[nodiscard]] State read(std::string& line, std::chrono::milliseconds patience);
    /// How it ended, in words; empty: as it should. Waits for it.
    [[nodiscard]] std::string end();
    void kill() noexcept;

private:
    struct Process;
    std::unique_ptr<Process> process_;
    std::string pending_;
};

/// In a child: a crash asks nobody, and ends the process.
void crashQuietly();

} // namespace easel::validate
