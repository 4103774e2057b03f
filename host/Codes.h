#pragma once

#include "host/Types.h"

/// The host's result codes: four characters, the first in the most significant byte, unless said
/// otherwise.

[[nodiscard]] constexpr ai::int32 fourCharacterCode(const char (&text)[5]) noexcept {
    const auto byte = [&text](int i) {
        return static_cast<ai::uint32>(static_cast<ai::uint8>(text[i]));
    };
    return static_cast<ai::int32>(byte(0) << 24 | byte(1) << 16 | byte(2) << 8 | byte(3));
}

constexpr AIErr kNoErr = 0;
constexpr AIErr kOutOfMemoryErr = fourCharacterCode("!MEM");
constexpr AIErr kBadParameterErr = fourCharacterCode("PARM");
constexpr AIErr kNotImplementedErr = fourCharacterCode("!IMP");
constexpr AIErr kCantHappenErr = fourCharacterCode("CANT");
constexpr AIErr kCanceledErr = fourCharacterCode("STOP");
constexpr AIErr kNoDocumentErr = fourCharacterCode("DOC?");
constexpr AIErr kSelectorClashErr = fourCharacterCode("CLSH");
constexpr AIErr kNameNotFoundErr = fourCharacterCode("NAM?");
constexpr AIErr kUndoRedoErr = fourCharacterCode("UND!");
constexpr AIErr kUnknownArtTypeErr = fourCharacterCode("ART?");
constexpr AIErr kUnknownPaintOrderTypeErr = fourCharacterCode("ORD?");
constexpr AIErr kUntouchableArtObjectErr =
    fourCharacterCode("ELIO"); ///< Locked, hidden, or the like.
constexpr AIErr kTooDeepNestingErr = fourCharacterCode("NEST");
constexpr AIErr kUntouchableLayerErr = fourCharacterCode("NESS");
constexpr AIErr kInvalidArtTypeForDestErr = fourCharacterCode("~VAT");
constexpr AIErr kCantDeleteLastLayerErr = fourCharacterCode("!XLL");
constexpr AIErr kTooManySegmentsErr = fourCharacterCode("SEGM"); ///< Over 32,000 in one path.
constexpr AIErr kNoSuchKey = fourCharacterCode("NOKY");
constexpr AIErr kNoSuchEntry = fourCharacterCode("EnNS");
constexpr AIErr kWrongEntryType = 100; ///< A plain number, not a four-character code.
constexpr AIErr kNoConversionErr = fourCharacterCode("NoCV");
constexpr AIErr kUnknownPluginGroupErr = fourCharacterCode("GRP?");
constexpr AIErr kSymbolNotInCurrentDocument = fourCharacterCode("SYnD");
constexpr AIErr kTooManyMenuItemsErr = fourCharacterCode(">MIT");
constexpr AIErr kFolderNotFoundErr = fourCharacterCode("D!FD");
constexpr AIErr kInvalidPanelErr = fourCharacterCode("INVD");

constexpr AIErr kStringIndexErr = fourCharacterCode("US!I");
constexpr AIErr kStringTooLongErr = fourCharacterCode("US#L");
constexpr AIErr kStringMalformedErr = fourCharacterCode("US!F");

constexpr SPErr kSPBadParameterError = fourCharacterCode("Parm"); ///< Differs in case from "PARM".
constexpr SPErr kSPSuiteNotFoundError = fourCharacterCode("S!Fd");
constexpr SPErr kSPSuiteAlreadyReleasedError = fourCharacterCode("SRel");
constexpr SPErr kSPCantAcquirePluginError = fourCharacterCode("!Acq");
constexpr SPErr kSPCantReleasePluginError = fourCharacterCode("!Rel");
constexpr SPErr kSPPluginAlreadyReleasedError = fourCharacterCode("AlRl");
constexpr SPErr kSPPluginNotFoundError = fourCharacterCode("P!Fd");
constexpr SPErr kSPCorruptPiPLError = fourCharacterCode("CPPL");
constexpr SPErr kSPPluginCachesFlushResponse =
    fourCharacterCode("pFls");              ///< An answer, not a failure.
constexpr SPErr kSPOutOfMemoryError = -108; ///< A plain number.

/// A plug-in's answer that it does not handle a message; the host itself never uses it.
constexpr AIErr kUnhandledMsgErr = fourCharacterCode("!MSG");
