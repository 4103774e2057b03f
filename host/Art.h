#pragma once

#include "host/Types.h"

/// Constants and records of the art tree: types, attributes, paint order, path segments, bounds,
/// transformations, dictionary entry types, hit tests.

enum AIArtType : ai::int16 {
    kAnyArt = -1, ///< For matching only.
    kUnknownArt = 0,
    kGroupArt = 1,
    kPathArt = 2,
    kCompoundPathArt = 3,
    kPlacedArt = 7,
    kRasterArt = 9,
    kPluginArt = 10,
    kMeshArt = 11,
    kTextFrameArt = 12,
    kSymbolArt = 13,
    kForeignArt = 14,
    kLegacyTextArt = 15,
    kChartArt = 16,
};

/// Where art goes, relative to `prep`. Children are listed front-most first.
enum AIPaintOrderCode : ai::int16 {
    kPlaceDefault = 0,
    kPlaceAbove = 1,
    kPlaceBelow = 2,
    kPlaceInsideOnTop = 3,
    kPlaceInsideOnBottom = 4,
    kPlaceAboveAll = 5,
    kPlaceBelowAll = 6,
};

/// Attributes of art. To set one pass it both as mask and as value; never 1 for "true".
enum AIArtUserAttr : ai::int32 {
    kArtSelected = 0x00000001,
    kArtLocked = 0x00000002,
    kArtHidden = 0x00000004,
    kArtFullySelected = 0x00000008,
    kArtExpanded = 0x00000010,
    kArtTargeted = 0x00000020,
    kArtSelectedTopLevelGroups = 0x00000040,    ///< Matching only.
    kArtSelectedLeaves = 0x00000080,            ///< Matching only.
    kArtSelectedTopLevelWithPaint = 0x00000100, ///< Matching only.
    kArtHasSimpleStyle = 0x00000200,            ///< Read only.
    kArtHasActiveStyle = 0x00000400,            ///< Read only.
    kArtPartOfCompound = 0x00000800,            ///< Read only.
    kArtIsClipMask = 0x00001000,
    kMatchDictionaryArt = 0x00002000, ///< Matching only.
    kMatchGraphArt = 0x00004000,      ///< Matching only.
    kMatchResultArt = 0x00008000,     ///< Matching only: result groups of plug-in groups too.
    kArtIsTextWrap = 0x00010000,
    kMatchTextPaths = 0x00020000, ///< Matching only.
    kArtStyleIsDirty = 0x00040000,
    kMatchNotIntoPluginGroups = 0x00080000, ///< Matching only.
};

/// An object matches when its type is `type` (or `kAnyArt`) and (attributes & whichAttr) == attr.
struct AIArtSpec {
    ai::int16 type;
    ai::int32 whichAttr;
    ai::int32 attr;
};

/// One anchor with its handles. The curve from anchor i to i + 1 is the cubic
/// (p[i], out[i], in[i + 1], p[i + 1]); a straight piece has its handles on its anchors.
struct AIPathSegment {
    AIRealPoint p;
    AIRealPoint in;
    AIRealPoint out;
    AIBoolean corner;
};

/// The most segments that the host allows in one path; beyond: 'SEGM'.
constexpr ai::int32 kMaxPathSegments = 32000;

/// What of one anchor is selected.
enum AISegmentSelection : ai::int16 {
    kSegmentNotSelected = 0,
    kSegmentPointSelected = 1,
    kSegmentInSelected = 2,
    kSegmentOutSelected = 3,
    kSegmentInAndOutSelected = 4,
};

/// Flags of `GetArtTransformBounds`.
enum AIArtBoundsOptions : ai::int32 {
    kVisibleBounds = 0x0000,
    kControlBounds = 0x0001,
    kNoStrokeBounds = 0x0002,
    kNoExtendedBounds = 0x0004,
    kUserPreviewBounds = 0x0008,
    kExcludeHiddenBounds = 0x0010,
    kExcludeUnpaintedObjectBounds = 0x0020,
    kExcludeGuideBounds = 0x0040,
};

/// Flags of `TransformArt`.
enum AITransformArtOptions : ai::int32 {
    kTransformObjects = 1 << 0,
    kTransformFillGradients = 1 << 1,
    kTransformFillPatterns = 1 << 2,
    kTransformStrokePatterns = 1 << 3,
    kScaleLines = 1 << 4,
    kTransformLinkedMasks = 1 << 5,
    kTransformChildren = 1 << 6,
    kTransformSelectionOnly = 1 << 7,
    kTellParentPluginGroups = 1 << 8,
    kTransformStrokeGradients = 1 << 10,
};

/// `which` of `TransferAttributes`: every property that all kinds of art share. Geometry, closed
/// and guide state, clip flag, selection, dictionary and note are not among them.
constexpr ai::uint32 kTransferAll = 0xFFFFFFFF;

enum AIEntryTypeCode : ai::int32 {
    kUnknownEntry = 0,
    kIntegerEntry = 1,
    kBooleanEntry = 2,
    kRealEntry = 3,
    kStringEntry = 4,
    kDictionaryEntry = 5,
    kArrayEntry = 6,
    kBinaryEntry = 7,
    kPointEntry = 8,
    kMatrixEntry = 9,
    kUnicodeStringEntry = 26,
    kPointerEntry = 27,
};

/// What `HitTest` looks for.
enum AIHitRequest : ai::int32 {
    kAllHitRequest = 0,
    kAnchorHitRequest = 1,
    kEndAnchorHitRequest = 2,
    kGuideHitRequest = 3,
    kPathHitRequest = 4,
    kTextHitRequest = 5,
    kSelectionHitRequest = 6,
    kPaintHitRequest = 7,
    kAllNoFillHitRequest = 8,
    kPaintNoFillHitRequest = 9,
};

enum AIHitType : ai::int32 {
    kAnchorHit = 0,
    kInHandleHit = 1,
    kOutHandleHit = 2,
    kSegmentHit = 3, ///< On the curve that ENDS at the reported segment.
    kFillHit = 4,
    kCenterHit = 5,
    kGuideIntersectionHit = 6,
};

struct AIToolHitData {
    AIBoolean hit;
    ai::int16 type;
    ai::int16 segment;
    struct ArtObject* object;
    struct ArtObject* group;
    AIRealPoint point;
    AIReal t;
};

/// A constraint of cursor snapping: 1 a point, 2 a line at an absolute angle, 3 a line at an angle
/// from the constrain angle; flag 1: only while Shift is down.
struct AICursorConstraint {
    ai::int32 kind;
    ai::int32 flags;
    AIRealPoint point;
    AIReal theta;
    ai::UnicodeString* label;
};

struct AIDocumentSetup {
    AIReal width;
    AIReal height;
    AIBoolean showPlacedImages;
    AIReal outputResolution;
    AIBoolean splitLongPaths;
    AIBoolean useDefaultScreen;
    AIBoolean compatibleGradients;
    AIBoolean printTiles;
    AIBoolean tileFullPages;
};

/// Values of `GetDocumentRulerUnits`.
enum AIRulerUnits : ai::int16 {
    kUnknownUnits = 0,
    kInchesUnits = 1,
    kCentimetersUnits = 2,
    kPointsUnits = 3,
    kPicasUnits = 4,
    kMillimetersUnits = 5,
    kPixelsUnits = 6,
    kQUnits = 7,
};

/// What becomes of the changes made in one outermost context.
enum AIUndoContextKind : ai::int32 {
    kStandardUndoContext = 0, ///< A step that the user can undo.
    kSilentUndoContext = 1,   ///< Passed over by undo and redo.
    kAppendUndoContext = 2,   ///< Joined to the step before.
};

static_assert(sizeof(AIArtSpec) == 12 && offsetof(AIArtSpec, whichAttr) == 4);
static_assert(sizeof(AIPathSegment) == 28 && offsetof(AIPathSegment, corner) == 24);
static_assert(sizeof(AIToolHitData) == 40 && offsetof(AIToolHitData, object) == 8 &&
              offsetof(AIToolHitData, point) == 24 && offsetof(AIToolHitData, t) == 32);
static_assert(sizeof(AICursorConstraint) == 32 && offsetof(AICursorConstraint, label) == 24);
static_assert(sizeof(AIDocumentSetup) == 36);
