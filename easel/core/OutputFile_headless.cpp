#include "easel/core/OutputFile.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace easel {
namespace {

/// More links in a row lead nowhere.
constexpr int kMostLinks = 40;

/// Names that somebody else has, in a row.
constexpr int kMostTries = 100;

std::filesystem::path endOfLinks(std::filesystem::path file) {
    std::error_code error;
    for (int i = 0; i < kMostLinks && std::filesystem::is_symlink(file, error); ++i) {
        const std::filesystem::path next = std::filesystem::read_symlink(file, error);
        if (error) break;
        file = file.parent_path() / next; // an absolute one takes its place
    }
    return file;
}

bool writeAll(int file, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written = ::write(file, bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR) continue;
        if (written <= 0) return false;
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

} // namespace

OutputFile::OutputFile(std::filesystem::path file)
    : file_(std::move(file)), target_(endOfLinks(file_)) {
    struct stat known {};
    if (::stat(target_.c_str(), &known) != 0) return;
    if (S_ISDIR(known.st_mode)) fail("this is a folder; name a file");
    isDevice_ = !S_ISREG(known.st_mode);
    if (::access(target_.c_str(), W_OK) != 0)
        fail("the file cannot be replaced; check that it may be written to");
}

OutputFile::~OutputFile() {
    if (handle_ >= 0) ::close(static_cast<int>(handle_));
    if (!part_.empty()) ::unlink(part_.c_str());
}

void OutputFile::prepare(std::string bytes) {
    if (isDevice_) {
        bytes_ = std::move(bytes);
        return;
    }
    const std::filesystem::path folder = target_.has_parent_path() ? target_.parent_path() : ".";
    constexpr mode_t kMode = 0666;
    // A file without a name is gone when the program ends, however it ends.
    int file = ::open(folder.c_str(), O_TMPFILE | O_WRONLY | O_CLOEXEC, kMode);
    for (int i = 0; file < 0 && i < kMostTries; ++i) {
        part_ = nameBeside(target_);
        file = ::open(part_.c_str(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, kMode);
        if (file >= 0 || errno == EEXIST) continue;
        part_.clear();
        failToMake();
    }
    if (file < 0) failToMake();
    handle_ = file;
    struct stat former {};
    if (::stat(target_.c_str(), &former) == 0)
        static_cast<void>(::fchmod(file, former.st_mode & 07777));
    if (!writeAll(file, bytes) || ::fsync(file) != 0) failToWrite();
}

void OutputFile::commit() {
    if (isDevice_) {
        const int device = ::open(target_.c_str(), O_WRONLY | O_CLOEXEC);
        const bool written = device >= 0 && writeAll(device, bytes_);
        if (device < 0 || ::close(device) != 0 || !written) fail("the device takes no more");
        return;
    }
    const std::string unnamed = "/proc/self/fd/" + std::to_string(handle_);
    for (int i = 0; part_.empty() && i < kMostTries; ++i) {
        const std::filesystem::path name = nameBeside(target_);
        if (::linkat(AT_FDCWD, unnamed.c_str(), AT_FDCWD, name.c_str(), AT_SYMLINK_FOLLOW) == 0)
            part_ = name;
        else if (errno != EEXIST)
            break;
    }
    if (part_.empty()) failToMake();
    const int written = ::close(static_cast<int>(handle_));
    handle_ = -1;
    if (written != 0) failToWrite();
    if (::rename(part_.c_str(), target_.c_str()) != 0)
        fail("the file cannot be replaced; check that it may be written to");
    part_.clear();
}

} // namespace easel
