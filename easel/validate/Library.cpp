#include "easel/runtime/Library.h"

#include "easel/session/DrawingSession.h"
#include "easel/validate/Checks.h"
#include "easel/validate/LibraryFile.h"
#include "easel/validate/WindowsFunctions.h"

#include <algorithm>
#include <cstring>
#include <sstream>

/// The file as it ships, before and while its code is loaded.

namespace easel::validate {
namespace {

void checkPropertyList(const Options& options, Trials& trials) {
    const std::vector<PluginDescription> plugins = describePlugins(options.plugin);
    for (const PluginDescription& plugin : plugins)
        if (plugin.name.empty() || plugin.entry.empty())
            trials.fail("a plug-in in it has no name or no entry");
}

void checkExports(const Options& options, const LibraryFile& library, Trials& trials) {
    std::vector<std::string> entries;
    for (const PluginDescription& plugin : describePlugins(options.plugin))
        entries.push_back(plugin.entry);
    for (const std::string& entry : entries)
        if (!std::ranges::count(library.exports, entry)) trials.fail("it does not export " + entry);
    for (const std::string& name : library.exports)
        if (!std::ranges::count(entries, name)) trials.fail("it exports " + name + " as well");
}

/// "library.dll function" for all in the list that the build checks against.
std::vector<std::string> knownImports() {
    std::vector<std::string> known;
    std::string from;
    std::istringstream lines{windowsFunctions()};
    for (std::string line; std::getline(lines, line);) {
        if (line.empty() || line.front() == '#') continue;
        if (line.front() != ' ') {
            from = line;
            continue;
        }
        std::istringstream words(line);
        for (std::string function; words >> function;)
            known.push_back(from + ' ' + function);
    }
    return known;
}

void checkImports(const LibraryFile& library, Trials& trials) {
    const std::vector<std::string> known = knownImports();
    for (const std::string& each : library.imports)
        if (!std::ranges::count(known, each))
            trials.fail("it imports \"" + each + "\", which not every supported Windows has");
}

void checkProtection(const LibraryFile& library, Trials& trials) {
    for (const std::string& part : library.selfWriting)
        trials.fail(part + " is writable and executable at once");
    for (const std::string& protection : library.lacking)
        trials.fail("it does without " + protection);
}

void checkVersion(const LibraryFile& library, Trials& trials) {
    const auto version = std::ranges::find(library.resources, "#16", &Resource::type);
    if (version == library.resources.end()) return trials.fail("it has no version");
    // The two numbers after the signature and the structure's own version; then texts of 16 bits.
    constexpr std::array<unsigned char, 4> kSignature = {0xBD, 0x04, 0xEF, 0xFE};
    const std::vector<std::byte>& bytes = version->bytes;
    const auto at =
        std::search(bytes.begin(), bytes.end(), kSignature.begin(), kSignature.end(),
                    [](std::byte one, unsigned char other) { return one == std::byte{other}; });
    if (bytes.end() - at < 16) return trials.fail("its version has no numbers");
    const auto word = [&](int offset) {
        return std::to_integer<int>(at[offset]) + 256 * std::to_integer<int>(at[offset + 1]);
    };
    const std::string number =
        std::to_string(word(10)) + '.' + std::to_string(word(8)) + '.' + std::to_string(word(14));
    std::string text; // the lower bytes of all of it
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2)
        text += static_cast<char>(bytes[i]);
    for (const char* const name : {"FileVersion", "ProductVersion"}) {
        const std::size_t key = text.find(name);
        if (key == std::string::npos || text.find(number, key) > key + std::strlen(name) + 4)
            trials.fail(std::string(name) + " is not " + number + ", as its number is");
    }
}

bool has(const LibraryFile& library, const std::string& type, int id) {
    return std::ranges::any_of(library.resources, [&](const Resource& each) {
        return each.type == type && each.id == id;
    });
}

/// Pictures of the light interface have these ids, those of the dark one a thousand more.
constexpr int kFirstLight = 2000;
constexpr int kFirstDark = 3000;

bool isWholePng(const std::vector<std::byte>& bytes) {
    constexpr std::string_view kStart = "\x89PNG\r\n\x1A\n";
    constexpr std::string_view kEnd = "IEND\xAE\x42\x60\x82";
    const std::string_view text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    return text.starts_with(kStart) && text.find(kEnd) != std::string_view::npos;
}

void checkPictures(const LibraryFile& library, Trials& trials) {
    std::size_t pictures = 0;
    for (const Resource& each : library.resources) {
        if (each.type != "PNGI" && each.type != "PNG3") continue;
        ++pictures;
        const std::string name = each.type + ' ' + std::to_string(each.id);
        if (!isWholePng(each.bytes)) trials.fail(name + " is no whole picture");
        if (each.id >= kFirstLight && each.id < kFirstDark &&
            !has(library, each.type, each.id + 1000))
            trials.fail(name + " has no twin for the dark interface");
        if (each.type == "PNG3" && !has(library, "PNGI", each.id))
            trials.fail(name + " has no picture of its plain size");
    }
    if (pictures == 0) trials.fail("it has no pictures");
    if (!std::ranges::count(library.resources, "NREV", &Resource::type))
        trials.fail("it has no layouts");
}

void checkTwice(const Options& options, Trials& trials) {
    const std::string entry = describePlugins(options.plugin).front().entry;
    auto library = std::make_unique<Library>(options.plugin);
    const SPPluginEntryFunc first = library->entry(entry);
    FormerPlace place(*library);
    library.reset();
    place.keep();
    library = std::make_unique<Library>(options.plugin);
    if (library->entry(entry) == first) trials.fail("it was loaded at the same address again");
}

} // namespace

void checkLibrary(Session&, Trials& trials) {
    const Options& options = trials.options();
    const LibraryFile library = readLibraryFile(options.plugin);
    const bool forWindows = !library.imports.empty();
    if (trials.begin(1, "its property list")) checkPropertyList(options, trials);
    if (trials.begin(2, "its exports")) checkExports(options, library, trials);
    if (trials.begin(3, "its protection")) checkProtection(library, trials);
    if (trials.begin(4, "two places in memory")) checkTwice(options, trials);
    if (forWindows && trials.begin(5, "its imports")) checkImports(library, trials);
    if (trials.begin(6, "its version")) checkVersion(library, trials);
    if (trials.begin(7, "its pictures and layouts")) checkPictures(library, trials);
}

} // namespace easel::validate
