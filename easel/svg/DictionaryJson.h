#pragma once

#include "easel/document/Dictionary.h"

#include <string>
#include <string_view>

namespace easel::svg {

/// The lasting entries as JSON: [{"key": ..., "type": ..., "value": ...}, ...], ordered by key.
/// Empty text when there is nothing to keep.
[[nodiscard]] std::string dictionaryJson(const Dictionary& dictionary);

/// Adds the entries of such a text to `dictionary`. Throws std::invalid_argument, saying what is
/// wrong, when it is none; the dictionary may then hold a part of them.
void readDictionaryJson(std::string_view text, Dictionary& dictionary);

} // namespace easel::svg
