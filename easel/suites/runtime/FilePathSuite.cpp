#include "easel/core/Arguments.h"
#include "easel/core/Expose.h"
#include "easel/core/HostPath.h"
#include "easel/core/HostString.h"
#include "easel/core/Text.h"
#include "easel/suites/runtime/RuntimeSuites.h"
#include "host/suites/AIFilePathSuite.h"

#include <algorithm>
#include <system_error>

/// Paths in the notation of the system that Easel runs on.

namespace easel {
namespace {

using Path = std::filesystem::path;

std::u32string textOf(const Path& path) { return utf32FromUtf16(path.u16string()); }
Path pathOf(const ai::UnicodeString& text) { return {utf16FromUtf32(readString(text))}; }

AIErr newPath(ai::FilePath& path) {
    // What a new object holds so far is of no account: it may never have been set to anything.
    reinterpret_cast<void*&>(path) = nullptr;
    writePath(path, {});
    return kNoErr;
}

AIErr deleteFilePath(ai::FilePath& path) {
    deletePath(path);
    return kNoErr;
}

AIErr copy(const ai::FilePath& source, ai::FilePath& destination) {
    writePath(destination, readPath(source));
    return kNoErr;
}

AIBool8 isEmpty(const ai::FilePath& path) { return readPath(path).empty() ? 1 : 0; }

void makeEmpty(ai::FilePath& path) { writePath(path, {}); }

Path resolved(const Path& path, bool resolveLinks) {
    std::error_code ignored; // what does not exist resolves to itself
    const Path target = resolveLinks ? std::filesystem::weakly_canonical(path, ignored) : path;
    return target.empty() ? path : target;
}

AIBool8 equal(const ai::FilePath& first, const ai::FilePath& second, AIBool8 resolveLinks) {
    return resolved(readPath(first), resolveLinks != 0) ==
           resolved(readPath(second), resolveLinks != 0);
}

AIBool8 lessThan(const ai::FilePath& first, const ai::FilePath& second) {
    return readPath(first) < readPath(second);
}

/// On some systems one and the same.
constexpr char32_t kDelimiters[] = {U'/', static_cast<char32_t>(Path::preferred_separator)};

bool isDelimiter(char32_t character) { return std::ranges::count(kDelimiters, character) != 0; }

AIBool8 startsWithDelimiter(const ai::FilePath& path) {
    const std::u32string text = textOf(readPath(path));
    return !text.empty() && isDelimiter(text.front());
}

AIBool8 endsWithDelimiter(const ai::FilePath& path) {
    const std::u32string text = textOf(readPath(path));
    return !text.empty() && isDelimiter(text.back());
}

/// An empty addend leaves a delimiter at the end.
AIErr addComponent(const ai::UnicodeString& addend, ai::FilePath& path) {
    writePath(path, (readPath(path) / pathOf(addend)).make_preferred());
    return kNoErr;
}

void removeComponent(ai::FilePath& path) { writePath(path, readPath(path).parent_path()); }

void addExtension(const ai::UnicodeString& extension, ai::FilePath& path) {
    Path extended = readPath(path);
    if (!readString(extension).starts_with(U'.')) extended += '.';
    writePath(path, extended += pathOf(extension));
}

void removeExtension(ai::FilePath& path) { writePath(path, readPath(path).replace_extension()); }

AIBool8 exists(const ai::FilePath& object, AIBool8 resolveLinks, ai::UnicodeString* longPath,
               AIBool8* isFile) {
    const Path path = resolved(readPath(object), resolveLinks != 0);
    std::error_code failed;
    const auto status = std::filesystem::status(path, failed);
    if (!std::filesystem::exists(status)) return 0;
    if (longPath != nullptr) writeString(*longPath, textOf(path));
    if (isFile != nullptr) *isFile = std::filesystem::is_directory(status) ? 0 : 1;
    return 1;
}

AIErr resolve(ai::FilePath& path) {
    writePath(path, resolved(readPath(path), true));
    return kNoErr;
}

AIErr set(const ai::UnicodeString& text, AIBool8 /*expandName*/, ai::FilePath& path) {
    writePath(path, pathOf(text).make_preferred());
    return kNoErr;
}

AIErr getFileName(const ai::FilePath& path, AIBool8 /*displayName*/, ai::UnicodeString& name) {
    writeString(name, textOf(readPath(path).filename()));
    return kNoErr;
}

AIErr getFileNameNoExtension(const ai::FilePath& path, ai::UnicodeString& name) {
    writeString(name, textOf(readPath(path).stem()));
    return kNoErr;
}

/// Without the dot.
AIErr getExtension(const ai::FilePath& path, ai::UnicodeString& extension) {
    const std::u32string text = textOf(readPath(path).extension());
    writeString(extension, text.empty() ? text : text.substr(1));
    return kNoErr;
}

AIErr getFullPath(const ai::FilePath& path, AIBool8 /*displayName*/, ai::UnicodeString& text) {
    writeString(text, textOf(readPath(path)));
    return kNoErr;
}

/// Ends with the delimiter.
AIErr getDirectory(const ai::FilePath& path, AIBool8 /*displayName*/, ai::UnicodeString& text) {
    writeString(text, textOf((readPath(path).parent_path() / Path{}).make_preferred()));
    return kNoErr;
}

/// Of a volume: empty.
AIErr getParent(const ai::FilePath& path, ai::FilePath& parent) {
    const Path child = readPath(path);
    const Path above = child.parent_path();
    writePath(parent, above == child ? Path{} : above);
    return kNoErr;
}

char getDelimiter() { return static_cast<char>(Path::preferred_separator); }

} // namespace

void installFilePathSuite(SuiteServer& server) {
    auto table = server.table<AIFilePathSuite>(kAIFilePathSuite, kAIFilePathSuiteVersion);
    expose<&AIFilePathSuite::NewFilePath, newPath>(table);
    expose<&AIFilePathSuite::DeleteFilePath, deleteFilePath>(table);
    expose<&AIFilePathSuite::Copy, copy>(table);
    expose<&AIFilePathSuite::IsEmpty, isEmpty>(table);
    expose<&AIFilePathSuite::MakeEmpty, makeEmpty>(table);
    expose<&AIFilePathSuite::Equal, equal>(table);
    expose<&AIFilePathSuite::LessThan, lessThan>(table);
    expose<&AIFilePathSuite::StartsWithDelimiter, startsWithDelimiter>(table);
    expose<&AIFilePathSuite::EndsWithDelimiter, endsWithDelimiter>(table);
    expose<&AIFilePathSuite::AddComponent, addComponent>(table);
    expose<&AIFilePathSuite::RemoveComponent, removeComponent>(table);
    expose<&AIFilePathSuite::AddExtension, addExtension>(table);
    expose<&AIFilePathSuite::RemoveExtension, removeExtension>(table);
    expose<&AIFilePathSuite::Exists, exists>(table);
    expose<&AIFilePathSuite::Resolve, resolve>(table);
    expose<&AIFilePathSuite::Set, set>(table);
    expose<&AIFilePathSuite::GetFileName, getFileName>(table);
    expose<&AIFilePathSuite::GetFileNameNoExt, getFileNameNoExtension>(table);
    expose<&AIFilePathSuite::GetFileExtension, getExtension>(table);
    expose<&AIFilePathSuite::GetFullPath, getFullPath>(table);
    expose<&AIFilePathSuite::GetDirectory, getDirectory>(table);
    expose<&AIFilePathSuite::GetParent, getParent>(table);
    expose<&AIFilePathSuite::GetDelimiter, getDelimiter>(table);
}

} // namespace easel
