#include "easel/validate/Child.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <system_error>

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace easel::validate {
namespace {

constexpr const char* kThisProgram = "/proc/self/exe";

[[noreturn]] void fail(int code, const char* what) {
    throw std::system_error(code, std::generic_category(), what);
}

} // namespace

struct Child::Process {
    pid_t id = 0;
    int output = -1;
    bool reaped = false;
    int status = 0;

    void wait() noexcept {
        if (reaped) return;
        while (waitpid(id, &status, 0) < 0 && errno == EINTR) {
        }
        reaped = true;
    }
};

Child::Child(const std::vector<std::string>& arguments) : process_(std::make_unique<Process>()) {
    std::array<int, 2> ends{};
    // Another child that is started at the same time must not keep this one's end open.
    if (pipe2(ends.data(), O_CLOEXEC) != 0) fail(errno, "pipe2");
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
    posix_spawn_file_actions_adddup2(&actions, ends[1], STDERR_FILENO);
    std::vector<std::string> words{kThisProgram};
    words.insert(words.end(), arguments.begin(), arguments.end());
    std::vector<char*> pointers;
    for (std::string& word : words)
        pointers.push_back(word.data());
    pointers.push_back(nullptr);
    const int code =
        posix_spawn(&process_->id, kThisProgram, &actions, nullptr, pointers.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    close(ends[1]);
    process_->output = ends[0];
    process_->reaped = code != 0;
    if (code != 0) fail(code, "posix_spawn");
}

Child::~Child() {
    kill();
    process_->wait();
    close(process_->output);
}

Child::State Child::read(std::string& line, std::chrono::milliseconds patience) {
    for (;;) {
        const auto end = pending_.find('\n');
        if (end != std::string::npos) {
            line = pending_.substr(0, end);
            pending_.erase(0, end + 1);
            return State::Line;
        }
        pollfd waiting{process_->output, POLLIN, 0};
        const int ready = poll(&waiting, 1, static_cast<int>(patience.count()));
        if (ready < 0 && errno == EINTR) continue;
        if (ready == 0) return State::Silent;
        std::array<char, 4096>
            bytes; // NOLINT(cppcoreguidelines-pro-type-member-init): written below
        const ssize_t got = ::read(process_->output, bytes.data(), bytes.size());
        if (got < 0 && errno == EINTR) continue;
        if (got <= 0) return State::Ended;
        pending_.append(bytes.data(), static_cast<std::size_t>(got));
    }
}

std::string Child::end() {
    process_->wait();
    if (WIFSIGNALED(process_->status))
        return "ended by signal " + std::to_string(WTERMSIG(process_->status)) + " (" +
               strsignal(WTERMSIG(process_->status)) + ')';
    const int status = WEXITSTATUS(process_->status);
    return status == 0 ? "" : "ended with status " + std::to_string(status);
}

void Child::kill() noexcept {
    if (!process_->reaped) ::kill(process_->id, SIGKILL);
}

void crashQuietly() {}

} // namespace easel::validate
