#pragma once

/// The dictionary of an object and the marks that Facetta keeps in it.

#include "host/References.h"

namespace facetta {

/// The dictionary of `art`; empty for null art. Throws `ai::Error`.
[[nodiscard]] ai::Dictionary dictionaryOf(AIArtHandle art);

/// Whether a reader of entries, which answered `error`, has given a value. There is none to give
/// where the entry is missing or of another type. Any other failure is the host's and says nothing
/// about the entry; it throws `ai::Error`, because a default in its place would have copies taken
/// for outdated, kept objects for copies, or mirrored across other axes.
[[nodiscard]] bool wasRead(AIErr error);

/// The keys of both marks, looked up once for many objects.
struct MarkKeys {
    AIDictKey mirror = nullptr;
    AIDictKey guide = nullptr;
};
[[nodiscard]] MarkKeys markKeys();

/// What one object carries.
struct ArtMarks {
    ai::int32 mirror = 0; ///< As `MirrorTag::get`.
    bool guide = false;   ///< As `GuideTag::has`; false for a generated copy.
    bool entries = false; ///< Some plug-in, perhaps another one, has stored something with it.
};

/// All of it in one look at the dictionary. Throws `ai::Error`.
[[nodiscard]] ArtMarks marksOf(AIArtHandle art, const MarkKeys& keys);

/// The mirror mark in `entries`, by the rule of `MirrorTag::get`.
[[nodiscard]] ai::int32 mirrorMarkIn(AIDictionaryRef entries, AIDictKey key);

} // namespace facetta
