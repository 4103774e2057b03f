#pragma once

#include "host/Handles.h"
#include "host/SuiteId.h"
#include "host/Types.h"

inline constexpr char kAISymbolSuite[] = "AI Symbol Suite";
inline constexpr ai::int32 kAISymbolSuiteVersion = 6;

struct AISymbolSuite {
    AIErr (*CountSymbolPatterns)(ai::int32*, AIBoolean);
    AIErr (*GetNthSymbolPattern)(ai::int32, AIPatternHandle*, AIBoolean);
    ReservedSlot GetSymbolPatternByName, GetSymbolByNameFromDocument,
        CountSymbolPatternsFromDocument, GetNthSymbolPatternFromDocument, NewSymbolPattern,
        NewSymbolPatternFromSel, NewSymbolPatternFromSelGetBounds, DeleteSymbolPattern;
    AIBoolean (*ValidateSymbolPattern)(AIPatternHandle);
    ReservedSlot GetSymbolPatternArt, PasteSymbolPatternArt, CopySymbolPatternArt,
        SetSymbolPatternArt, SetSymbolPatternFromSel;
    AIErr (*GetSymbolPatternName)(AIPatternHandle, ai::UnicodeString&);
    ReservedSlot SetSymbolPatternName, GetSymbolPatternDisplayName, SetSymbolPatternBaseName,
        NewInstanceCenteredInView, NewInstanceAtLocation;
    AIErr (*NewInstanceWithTransform)(AIPatternHandle, AIRealMatrix*, ai::int16, AIArtHandle,
                                      AIArtHandle*);
    /// The symbol that the instance shows.
    AIErr (*GetSymbolPatternOfSymbolArt)(AIArtHandle art, AIPatternHandle* pattern);
    AIErr (*SetSymbolPatternOfSymbolArt)(AIArtHandle, AIPatternHandle);
    AIErr (*GetHardTransformOfSymbolArt)(AIArtHandle, AIRealMatrix*);
    AIErr (*SetHardTransformOfSymbolArt)(AIArtHandle, AIRealMatrix*);
    AIErr (*GetSoftTransformOfSymbolArt)(AIArtHandle, AIRealMatrix*);
    AIErr (*SetSoftTransformOfSymbolArt)(AIArtHandle, AIRealMatrix*);
    ReservedSlot InsertExpandedSymbolArt, IsSymbolPatternListed, MakeSymbolPatternListed,
        UnlistSymbolPattern, SortListedSymbolPatterns, MoveSymbolPatternInList,
        ArtUsesSymbolPattern, BreakLinkToSymbol, RetargetForCurrentDocument,
        CopySymbolPatternOutline, InsertSymbolArtOutline, PeekCachedPatternOutline,
        SetSymbolPatternFromSelGetBounds, SetSymbolExportType, GetSymbolExportType,
        SetSymbolEnableGuides, GetSymbolEnableGuides, SetSymbol9SliceGrid, GetSymbol9SliceGrid,
        SetEditingSymbolDefinition, EndEditingSymbolDefinition, GetSymbolEditMode,
        ExitSymbolEditMode, EditingSymbolPattern, IsSymbolEditingArtType, ValidateSymbolEditingArt,
        SetSymbolPixelPerfect, GetSymbolEnablePixelPerfect, IsSymbolArt9SliceScaled,
        RetargetForCurrentDocumentAsUnlisted;
};

template <>
struct ai::SuiteId<AISymbolSuite> : ai::SuiteIdentity<kAISymbolSuite, kAISymbolSuiteVersion> {};
