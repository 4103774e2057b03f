#include "host/SuiteTable.h"

#include "host/Suites.h"
#include "host/suites/AIAnnotatorDrawerSuite.h"
#include "host/suites/AIAnnotatorSuite.h"
#include "host/suites/AIAppContextSuite.h"
#include "host/suites/AIArraySuite.h"
#include "host/suites/AIArtSetSuite.h"
#include "host/suites/AIArtSuite.h"
#include "host/suites/AIBlockSuite.h"
#include "host/suites/AICountedObjectSuite.h"
#include "host/suites/AICursorSnapSuite.h"
#include "host/suites/AIDictionarySuite.h"
#include "host/suites/AIDocumentListSuite.h"
#include "host/suites/AIDocumentSuite.h"
#include "host/suites/AIDocumentViewSuite.h"
#include "host/suites/AIEntrySuite.h"
#include "host/suites/AIFilePathSuite.h"
#include "host/suites/AIFoldersSuite.h"
#include "host/suites/AIGroupSuite.h"
#include "host/suites/AIHardSoftSuite.h"
#include "host/suites/AIHitTestSuite.h"
#include "host/suites/AILayerSuite.h"
#include "host/suites/AIMenuSuite.h"
#include "host/suites/AINotifierSuite.h"
#include "host/suites/AIPathStyleSuite.h"
#include "host/suites/AIPathSuite.h"
#include "host/suites/AIPluginGroupSuite.h"
#include "host/suites/AIPreferenceSuite.h"
#include "host/suites/AIRealBezierSuite.h"
#include "host/suites/AIRealMathSuite.h"
#include "host/suites/AIRuntimeSuite.h"
#include "host/suites/AISymbolSuite.h"
#include "host/suites/AITimerSuite.h"
#include "host/suites/AIToolSuite.h"
#include "host/suites/AIToolboxSuite.h"
#include "host/suites/AITransformArtSuite.h"
#include "host/suites/AIURLSuite.h"
#include "host/suites/AIUndoSuite.h"
#include "host/suites/AIUnicodeStringSuite.h"
#include "host/suites/AIUserSuite.h"
#include "host/suites/SPAccessSuite.h"
#include "host/suites/SPBlocksSuite.h"
#include "host/suites/SPPluginsSuite.h"

#include <type_traits>

namespace ai {

Suites suites;                            // NOLINT(cppcoreguidelines-avoid-non-const-global*)
const SPBasicSuite* basicSuite = nullptr; // NOLINT(cppcoreguidelines-avoid-non-const-global*)

namespace {

template <auto Member> void store(const void* table) {
    suites.*Member = static_cast<const SuiteAt<Member>*>(table);
}

template <auto Member> constexpr SuiteRow row(Need need = Need::Required) {
    using Id = SuiteId<SuiteAt<Member>>;
    return {Id::name, Id::version, need, store<Member>, Id::fallbacks};
}

/// A suite that is acquired and never called.
template <auto Member> constexpr SuiteRow unused(const char* name, ai::int32 version) {
    return {name, version, Need::Required, store<Member>, {}};
}

template <std::size_t Index> constexpr SuiteRow text(const char* name, ai::int32 version) {
    return {name,
            version,
            Need::Required,
            [](const void* table) { std::get<Index>(suites.text) = table; },
            {}};
}

constexpr SuiteRow kRows[] = {
    row<&Suites::block>(),
    row<&Suites::art>(),
    row<&Suites::group>(),
    row<&Suites::document>(),
    row<&Suites::documentView>(),
    row<&Suites::documentList>(),
    row<&Suites::preference>(),
    row<&Suites::menu>(),
    row<&Suites::dictionary>(),
    row<&Suites::array>(),
    row<&Suites::unicodeString>(),
    row<&Suites::realMath>(),
    row<&Suites::user>(),
    row<&Suites::realBezier>(),
    row<&Suites::artSet>(),
    row<&Suites::layer>(),
    row<&Suites::path>(),
    row<&Suites::pathStyle>(),
    row<&Suites::annotator>(),
    row<&Suites::hitTest>(),
    row<&Suites::cursorSnap>(),
    row<&Suites::undo>(),
    row<&Suites::tool>(),
    row<&Suites::toolbox>(),
    unused<&Suites::commandManager>("AI Command Manager Suite", 4),
    row<&Suites::timer>(),
    unused<&Suites::textFrame>("AI Text Frame Suite", 3),
    row<&Suites::pluginGroup>(),
    row<&Suites::symbol>(),
    unused<&Suites::artStyle>("AI Art Style Suite", 6),
    unused<&Suites::artStyleParser>("AI Art Style Parser Suite", 7),
    unused<&Suites::liveEffect>("AI Live Effect Suite", 5),
    row<&Suites::countedObject>(),
    row<&Suites::entry>(),
    row<&Suites::transformArt>(),
    row<&Suites::hardSoft>(),
    unused<&Suites::placed>("AI Placed Suite", 7),
    unused<&Suites::raster>("AI Raster Suite", 9),
    unused<&Suites::font>("AI Font Suite", 5),
    row<&Suites::runtime>(),
    row<&Suites::folders>(),
    row<&Suites::filePath>(),
    unused<&Suites::dataFilter>("AI Data Filter Suite", 7),
    unused<&Suites::actionManager>("AI Action Manager Suite", 4),
    row<&Suites::url>(),
    unused<&Suites::characterEncoding>("AI Character Encoding Suite", 4),
    unused<&Suites::mesh>("AI Mesh Suite", 5),
    unused<&Suites::meshSegment>("AI Mesh Segment Suite", 2),

    // The host's text engine, acquired as one with the standard interface.
    text<0>("ATE ApplicationPaint Suite", 1),
    text<1>("ATE CompFont Suite", 1),
    text<2>("ATE CompFontClass Suite", 1),
    text<3>("ATE CompFontClassSet Suite", 1),
    text<4>("ATE CompFontComponent Suite", 1),
    text<5>("ATE CompFontSet Suite", 1),
    text<6>("ATE GlyphRun Suite", 1),
    text<7>("ATE GlyphRunsIterator Suite", 1),
    text<8>("ATE MojiKumi Suite", 1),
    text<9>("ATE MojiKumiSet Suite", 1),
    text<10>("ATE TextFrame Suite", 101),
    text<11>("ATE TextFramesIterator Suite", 1),
    text<12>("ATE TextLine Suite", 1),
    text<13>("ATE TextLinesIterator Suite", 1),
    text<14>("ATE TextResources Suite", 1),
    text<15>("ATE ApplicationTextResources Suite", 1),
    text<16>("ATE DocumentTextResources Suite", 101),
    text<17>("ATE VersionInfo Suite", 1),
    text<18>("ATE ArrayApplicationPaintRef Suite", 1),
    text<19>("ATE ArrayReal Suite", 1),
    text<20>("ATE ArrayBool Suite", 1),
    text<21>("ATE ArrayInteger Suite", 1),
    text<22>("ATE ArrayLineCapType Suite", 1),
    text<23>("ATE ArrayFigureStyle Suite", 1),
    text<24>("ATE ArrayLineJoinType Suite", 1),
    text<25>("ATE ArrayWariChuJustification Suite", 1),
    text<26>("ATE ArrayStyleRunAlignment Suite", 1),
    text<27>("ATE ArrayAutoKernType Suite", 1),
    text<28>("ATE ArrayBaselineDirection Suite", 1),
    text<29>("ATE ArrayLanguage Suite", 1),
    text<30>("ATE ArrayFontCapsOption Suite", 1),
    text<31>("ATE ArrayFontBaselineOption Suite", 1),
    text<32>("ATE ArrayFontOpenTypePositionOption Suite", 1),
    text<33>("ATE ArrayUnderlinePosition Suite", 1),
    text<34>("ATE ArrayStrikethroughPosition Suite", 1),
    text<35>("ATE ArrayParagraphJustification Suite", 1),
    text<36>("ATE ArrayArrayReal Suite", 1),
    text<37>("ATE ArrayBurasagariType Suite", 1),
    text<38>("ATE ArrayPreferredKinsokuOrder Suite", 1),
    text<39>("ATE ArrayKinsokuRef Suite", 1),
    text<40>("ATE ArrayMojiKumiRef Suite", 1),
    text<41>("ATE ArrayMojiKumiSetRef Suite", 1),
    text<42>("ATE ArrayTabStopsRef Suite", 1),
    text<43>("ATE ArrayLeadingType Suite", 1),
    text<44>("ATE ArrayFontRef Suite", 1),
    text<45>("ATE ArrayGlyphID Suite", 1),
    text<46>("ATE ArrayRealPoint Suite", 1),
    text<47>("ATE ArrayRealMatrix Suite", 1),
    text<48>("ATE CharFeatures Suite", 101),
    text<49>("ATE CharInspector Suite", 101),
    text<50>("ATE CharStyle Suite", 1),
    text<51>("ATE CharStyles Suite", 1),
    text<52>("ATE CharStylesIterator Suite", 1),
    text<53>("ATE Find Suite", 101),
    text<54>("ATE Font Suite", 1),
    text<55>("ATE Glyph Suite", 1),
    text<56>("ATE Glyphs Suite", 1),
    text<57>("ATE GlyphsIterator Suite", 1),
    text<58>("ATE Kinsoku Suite", 1),
    text<59>("ATE KinsokuSet Suite", 1),
    text<60>("ATE ParaFeatures Suite", 101),
    text<61>("ATE Paragraph Suite", 1),
    text<62>("ATE ParagraphsIterator Suite", 1),
    text<63>("ATE ParaInspector Suite", 101),
    text<64>("ATE ParaStyle Suite", 1),
    text<65>("ATE ParaStyles Suite", 1),
    text<66>("ATE ParaStylesIterator Suite", 1),
    text<67>("ATE Spell Suite", 101),
    text<68>("ATE Stories Suite", 1),
    text<69>("ATE Story Suite", 1),
    text<70>("ATE TabStop Suite", 1),
    text<71>("ATE TabStops Suite", 1),
    text<72>("ATE TabStopsIterator Suite", 1),
    text<73>("ATE TextRange Suite", 1),
    text<74>("ATE TextRanges Suite", 1),
    text<75>("ATE TextRangesIterator Suite", 1),
    text<76>("ATE TextRunsIterator Suite", 1),
    text<77>("ATE WordsIterator Suite", 1),
    text<78>("ATE ArrayLine Suite", 1),
    text<79>("ATE ArrayComposerEngine Suite", 1),
    text<80>("ATE ArrayParagraphDirection Suite", 1),
    text<81>("ATE ArrayJustificationMethod Suite", 1),
    text<82>("ATE ArrayKashidaWidth Suite", 1),
    text<83>("ATE ArrayKashidas Suite", 1),
    text<84>("ATE ArrayDirOverride Suite", 1),
    text<85>("ATE ArrayDigitSet Suite", 1),
    text<86>("ATE ArrayDiacVPos Suite", 1),

    // What the shell needs besides.
    row<&Suites::notifier>(),
    row<&Suites::appContext>(),
    row<&Suites::plugins>(),
    row<&Suites::access>(),
    row<&Suites::blocks>(),
    row<&Suites::annotatorDrawer>(Need::Optional),
};

} // namespace

std::span<const SuiteRow> suiteTable() noexcept { return kRows; }

} // namespace ai
