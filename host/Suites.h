#pragma once

#include "host/Types.h"

#include <array>
#include <type_traits>
#include <utility>

struct AIAnnotatorDrawerSuite;
struct AIAnnotatorSuite;
struct AIAppContextSuite;
struct AIArraySuite;
struct AIArtSetSuite;
struct AIArtSuite;
struct AIBlockSuite;
struct AICountedObjectSuite;
struct AICursorSnapSuite;
struct AIDictionarySuite;
struct AIDocumentListSuite;
struct AIDocumentSuite;
struct AIDocumentViewSuite;
struct AIEntrySuite;
struct AIFilePathSuite;
struct AIFoldersSuite;
struct AIGroupSuite;
struct AIHardSoftSuite;
struct AIHitTestSuite;
struct AILayerSuite;
struct AIMenuSuite;
struct AINotifierSuite;
struct AIPathStyleSuite;
struct AIPathSuite;
struct AIPluginGroupSuite;
struct AIPreferenceSuite;
struct AIRealBezierSuite;
struct AIRealMathSuite;
struct AIRuntimeSuite;
struct AISymbolSuite;
struct AITimerSuite;
struct AIToolSuite;
struct AIToolboxSuite;
struct AITransformArtSuite;
struct AIURLSuite;
struct AIUndoSuite;
struct AIUnicodeStringSuite;
struct AIUserSuite;
struct SPAccessSuite;
struct SPBasicSuite;
struct SPBlocksSuite;
struct SPPluginsSuite;

namespace ai {

/// The function tables of the host, acquired at start-up and released at shut-down; null in
/// between. A table that Facetta acquires but never calls has no declaration.
struct Suites {
    const AIBlockSuite* block = nullptr;
    const AIArtSuite* art = nullptr;
    const AIGroupSuite* group = nullptr;
    const AIDocumentSuite* document = nullptr;
    const AIDocumentViewSuite* documentView = nullptr;
    const AIDocumentListSuite* documentList = nullptr;
    const AIPreferenceSuite* preference = nullptr;
    const AIMenuSuite* menu = nullptr;
    const AIDictionarySuite* dictionary = nullptr;
    const AIArraySuite* array = nullptr;
    const AIUnicodeStringSuite* unicodeString = nullptr;
    const AIRealMathSuite* realMath = nullptr;
    const AIUserSuite* user = nullptr;
    const AIRealBezierSuite* realBezier = nullptr;
    const AIArtSetSuite* artSet = nullptr;
    const AILayerSuite* layer = nullptr;
    const AIPathSuite* path = nullptr;
    const AIPathStyleSuite* pathStyle = nullptr;
    const AIAnnotatorSuite* annotator = nullptr;
    const AIHitTestSuite* hitTest = nullptr;
    const AICursorSnapSuite* cursorSnap = nullptr;
    const AIUndoSuite* undo = nullptr;
    const AIToolSuite* tool = nullptr;
    const AIToolboxSuite* toolbox = nullptr;
    const void* commandManager = nullptr;
    const AITimerSuite* timer = nullptr;
    const void* textFrame = nullptr;
    const AIPluginGroupSuite* pluginGroup = nullptr;
    const AISymbolSuite* symbol = nullptr;
    const void* artStyle = nullptr;
    const void* artStyleParser = nullptr;
    const void* liveEffect = nullptr;
    const AICountedObjectSuite* countedObject = nullptr;
    const AIEntrySuite* entry = nullptr;
    const AITransformArtSuite* transformArt = nullptr;
    const AIHardSoftSuite* hardSoft = nullptr;
    const void* placed = nullptr;
    const void* raster = nullptr;
    const void* font = nullptr;
    const AIRuntimeSuite* runtime = nullptr;
    const AIFoldersSuite* folders = nullptr;
    const AIFilePathSuite* filePath = nullptr;
    const void* dataFilter = nullptr;
    const void* actionManager = nullptr;
    const AIURLSuite* url = nullptr;
    const void* characterEncoding = nullptr;
    const void* mesh = nullptr;
    const void* meshSegment = nullptr;
    const AINotifierSuite* notifier = nullptr;
    const AIAppContextSuite* appContext = nullptr;
    const SPPluginsSuite* plugins = nullptr;
    const SPAccessSuite* access = nullptr;
    const SPBlocksSuite* blocks = nullptr;
    const AIAnnotatorDrawerSuite* annotatorDrawer = nullptr;
    std::array<const void*, 87> text{};
};

/// The suite whose functions the pointer `Member` of `Suites` leads to.
template <auto Member>
using SuiteAt = std::remove_const_t<
    std::remove_pointer_t<std::remove_reference_t<decltype(std::declval<Suites&>().*Member)>>>;

/// Written by `SuiteHolder`, `BorrowedSuite` and `alignToolSuite` only, for whoever calls the host:
/// all the program.
extern Suites suites; // NOLINT(cppcoreguidelines-avoid-non-const-global*)

/// Through which every suite is acquired. The host passes it with each message; the entry stores it
/// before it does anything else.
extern const SPBasicSuite* basicSuite; // NOLINT(cppcoreguidelines-avoid-non-const-global*)

} // namespace ai

namespace facetta {
using ai::suites;
}
