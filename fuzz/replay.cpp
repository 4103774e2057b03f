/// Runs a fuzz target without a fuzzer: over the files of its corpus, then over random changes of
/// them. For compilers that have no fuzzer, and for every run of the tests.
///
///   replay LAST FOLDER_OR_FILE...
///
/// LAST is where the input is kept while it is being tried; it is left there when the target stops
/// the program, to be tried again as the only FILE, and removed otherwise.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

using Input = std::vector<std::uint8_t>;
using Random = std::mt19937;

constexpr unsigned kSeed = 1;
constexpr int kChangedInputs = 4000;
constexpr int kMostEdits = 4;
/// Changed inputs stay as short as those that a fuzzer tries.
constexpr std::size_t kMostBytes = 16384;
/// Where limits are off by one, and what ends texts and numbers early.
constexpr std::uint8_t kTellingBytes[] = {0x00, 0x01, 0x7F, 0x80, 0xFF, '"', '-', '0', '9', 'e'};

/// Any number from 0 to `most`.
std::size_t upTo(std::size_t most, Random& random) {
    return std::uniform_int_distribution<std::size_t>(0, most)(random);
}

/// A stretch of `input`, for `assign` and the like.
struct Stretch {
    Input::const_iterator first;
    Input::const_iterator last;
};

Stretch stretchOf(const Input& input, Random& random) {
    const std::size_t start = upTo(input.size(), random);
    const std::size_t end = upTo(input.size(), random);
    const auto at = [&](std::size_t place) {
        return input.begin() + static_cast<std::ptrdiff_t>(place);
    };
    return {at(std::min(start, end)), at(std::max(start, end))};
}

Input::iterator placeIn(Input& input, Random& random) {
    return input.begin() + static_cast<std::ptrdiff_t>(upTo(input.size(), random));
}

void flipBit(Input& input, const Input& /*other*/, Random& random) {
    if (input.empty()) return;
    input[upTo(input.size() - 1, random)] ^= static_cast<std::uint8_t>(1U << upTo(7, random));
}

void putTellingByte(Input& input, const Input& /*other*/, Random& random) {
    if (input.empty()) return;
    const std::size_t which = upTo(std::size(kTellingBytes) - 1, random);
    input[upTo(input.size() - 1, random)] = kTellingBytes[which];
}

void insertByte(Input& input, const Input& /*other*/, Random& random) {
    input.insert(placeIn(input, random), static_cast<std::uint8_t>(upTo(0xFF, random)));
}

void removeStretch(Input& input, const Input& /*other*/, Random& random) {
    const auto [first, last] = stretchOf(input, random);
    input.erase(first, last);
}

void insertFromOther(Input& input, const Input& other, Random& random) {
    const auto [first, last] = stretchOf(other, random);
    input.insert(placeIn(input, random), first, last);
}

void repeatStretch(Input& input, const Input& /*other*/, Random& random) {
    const Input copy = input;
    insertFromOther(input, copy, random);
}

using Edit = void (*)(Input& input, const Input& other, Random& random);
constexpr Edit kEdits[] = {flipBit,       putTellingByte,  insertByte,
                           removeStretch, insertFromOther, repeatStretch};

Input changed(const std::vector<Input>& corpus, Random& random) {
    const auto any = [&] { return corpus[upTo(corpus.size() - 1, random)]; };
    Input input = any();
    for (std::size_t edits = 1 + upTo(kMostEdits - 1, random); edits > 0; --edits)
        kEdits[upTo(std::size(kEdits) - 1, random)](input, any(), random);
    input.resize(std::min(input.size(), kMostBytes));
    return input;
}

Input contents(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    if (!stream) {
        std::fprintf(stderr, "cannot read %s\n", file.c_str());
        std::exit(1);
    }
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

/// The files named or found in the folders named, in order of their names, so that runs agree.
std::vector<Input> corpusOf(const char* const* names, int count) {
    std::vector<std::filesystem::path> files;
    for (int i = 0; i < count; ++i) {
        if (!std::filesystem::is_directory(names[i])) {
            files.emplace_back(names[i]);
            continue;
        }
        for (const auto& entry : std::filesystem::recursive_directory_iterator(names[i]))
            if (entry.is_regular_file()) files.push_back(entry.path());
    }
    std::ranges::sort(files);
    std::vector<Input> corpus;
    std::ranges::transform(files, std::back_inserter(corpus), contents);
    return corpus;
}

void tryOne(const Input& input, const char* last) {
    std::filesystem::remove(last); // file systems wait for the disk when a file is overwritten
    std::ofstream(last, std::ios::binary)
        .write(reinterpret_cast<const char*>(input.data()),
               static_cast<std::streamsize>(input.size()));
    LLVMFuzzerTestOneInput(input.data(), input.size());
}

} // namespace

int main(int argumentCount, char** arguments) {
    if (argumentCount < 3) {
        std::fprintf(stderr, "usage: %s LAST FOLDER_OR_FILE...\n", arguments[0]);
        return 2;
    }
    const char* last = arguments[1];
    const std::vector<Input> corpus = corpusOf(arguments + 2, argumentCount - 2);
    if (corpus.empty()) {
        std::fprintf(stderr, "no input to begin with\n");
        return 1;
    }
    std::printf("%zu inputs, then %d changed ones; if it stops: %s\n", corpus.size(),
                kChangedInputs, last);
    std::fflush(stdout);
    for (const Input& input : corpus)
        tryOne(input, last);
    Random random(kSeed);
    for (int i = 0; i < kChangedInputs; ++i)
        tryOne(changed(corpus, random), last);
    std::filesystem::remove(last);
}
