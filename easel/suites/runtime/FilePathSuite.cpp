#include "easel/core/Expose.h"
#include "easel/core/HostObjects.h"
#include "easel/core/Text.h"
#include "easel/document/Session.h"
#include "easel/suites/runtime/RuntimeSuites.h"
#include "host/suites/AIFilePathSuite.h"

#include <system_error>

/// Paths in the notation of the system that Easel runs on.

namespace easel {
namespace {

using Path = std::filesystem::path;

std::u32string textOf(const Path& path) { return utf32FromUtf16(path.u16string()); }
Path pathOf(const ai::UnicodeString& text) {
    return {utf16FromUtf32(readString(session().ledger, text))};
}

void newPath(ai::FilePath& path) {
    // What a new object holds so far is of no account: it may never have been set to anything.
    reinterpret_cast<void*&>(path) = nullptr;
    writePath(session().ledger, path, {});
}

void deleteFilePath(ai::FilePath& path) { deletePath(session().ledger, path); }

void copy(const ai::FilePath& source, ai::FilePath& destination) {
    writePath(session().ledger, destination, readPath(session().ledger, source));
}

Path resolved(const Path& path, bool resolveLinks) {
    std::error_code ignored; // what does not exist resolves to itself
    const Path target = resolveLinks ? std::filesystem::weakly_canonical(path, ignored) : path;
    return target.empty() ? path : target;
}

/// An empty addend leaves a delimiter at the end.
void addComponent(const ai::UnicodeString& addend, ai::FilePath& path) {
    writePath(session().ledger, path,
              (readPath(session().ledger, path) / pathOf(addend)).make_preferred());
}

AIBool8 exists(const ai::FilePath& object, AIBool8 resolveLinks, ai::UnicodeString* longPath,
               AIBool8* isFile) {
    const Path path = resolved(readPath(session().ledger, object), resolveLinks != 0);
    std::error_code failed;
    const auto status = std::filesystem::status(path, failed);
    if (!std::filesystem::exists(status)) return 0;
    if (longPath != nullptr) writeString(session().ledger, *longPath, textOf(path));
    if (isFile != nullptr) *isFile = std::filesystem::is_directory(status) ? 0 : 1;
    return 1;
}

void set(const ai::UnicodeString& text, AIBool8 /*expandName*/, ai::FilePath& path) {
    writePath(session().ledger, path, pathOf(text).make_preferred());
}

void getFullPath(const ai::FilePath& path, AIBool8 /*displayName*/, ai::UnicodeString& text) {
    writeString(session().ledger, text, textOf(readPath(session().ledger, path)));
}

/// Of a volume: empty.
void getParent(const ai::FilePath& path, ai::FilePath& parent) {
    const Path child = readPath(session().ledger, path);
    const Path above = child.parent_path();
    writePath(session().ledger, parent, above == child ? Path{} : above);
}

} // namespace

void installFilePathSuite(SuiteServer& server) {
    expose<&AIFilePathSuite::NewFilePath, newPath>(server);
    exposeEnding<&AIFilePathSuite::DeleteFilePath, deleteFilePath>(server);
    expose<&AIFilePathSuite::Copy, copy>(server);
    expose<&AIFilePathSuite::AddComponent, addComponent>(server);
    expose<&AIFilePathSuite::Exists, exists>(server);
    expose<&AIFilePathSuite::Set, set>(server);
    expose<&AIFilePathSuite::GetFullPath, getFullPath>(server);
    expose<&AIFilePathSuite::GetParent, getParent>(server);
}

} // namespace easel
