#include "shell/ErrorReport.h"

#include <doctest/doctest.h>

using namespace facetta;

TEST_CASE("codes of 16385 or more are written as four characters, smaller ones as numbers") {
    struct Row {
        AIErr code;
        const char* text;
    };
    const Row rows[] = {
        {fourCharacterCode("!MEM"), "!MEM"},
        {fourCharacterCode("NA*!"), "NA*!"},
        {16384, "16384"},
        {361, "361"},
        {-108, "-108"},
        {100, "100"},
    };
    for (const auto& [code, text] : rows)
        CHECK(codeText(code) == text);
    CHECK(codeText(16385) == std::string("\0\0@\x01", 4));
}

TEST_CASE("every message tells the code, so that it can be looked up") {
    const AIErr codes[] = {kOutOfMemoryErr,  kNoDocumentErr,      kUntouchableArtObjectErr,
                           kBadParameterErr, kTooManySegmentsErr, -1};
    for (const AIErr code : codes) {
        INFO(code);
        CHECK(errorText(code).find(codeText(code)) != std::string::npos);
        CHECK(errorText(code).find('%') == std::string::npos);
    }
}

TEST_CASE("answers and cancelled work are no failures to show") {
    for (const AIErr code : {kCanceledErr, kSPSuiteNotFoundError, fourCharacterCode("VALD"), 361})
        CHECK(isSilent(code));
    for (const AIErr code : {kOutOfMemoryErr, kBadParameterErr, fourCharacterCode("stop"), -1, 362})
        CHECK_FALSE(isSilent(code));
}
