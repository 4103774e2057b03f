#pragma once

#include "host/Handles.h"
#include "host/Types.h"

inline constexpr char kAISymbolSuite[] = "AI Symbol Suite";
inline constexpr ai::int32 kAISymbolSuiteVersion = 6;

struct AISymbolSuite {
    AIErr (*CountSymbolPatterns)(ai::int32*, AIBoolean);
    AIErr (*GetNthSymbolPattern)(ai::int32, AIPatternHandle*, AIBoolean);
    AIErr (*GetSymbolPatternByName)(const ai::UnicodeString&, AIPatternHandle*);
    AIErr (*GetSymbolByNameFromDocument)(const ai::UnicodeString&, AIPatternHandle*,
                                         AIDocumentHandle);
    AIErr (*CountSymbolPatternsFromDocument)(ai::int32*, AIDocumentHandle);
    AIErr (*GetNthSymbolPatternFromDocument)(ai::int32, AIPatternHandle*, AIDocumentHandle);
    ReservedSlot NewSymbolPattern;
    ReservedSlot NewSymbolPatternFromSel;
    ReservedSlot NewSymbolPatternFromSelGetBounds;
    AIErr (*DeleteSymbolPattern)(AIPatternHandle);
    AIBoolean (*ValidateSymbolPattern)(AIPatternHandle);
    AIErr (*GetSymbolPatternArt)(AIPatternHandle, AIArtHandle*);
    AIErr (*PasteSymbolPatternArt)(AIPatternHandle);
    AIErr (*CopySymbolPatternArt)(AIPatternHandle, ai::int16, AIArtHandle, AIArtHandle*);
    AIErr (*SetSymbolPatternArt)(AIPatternHandle, AIArtHandle, AIBoolean);
    AIErr (*SetSymbolPatternFromSel)(AIPatternHandle);
    AIErr (*GetSymbolPatternName)(AIPatternHandle, ai::UnicodeString&);
    AIErr (*SetSymbolPatternName)(AIPatternHandle, const ai::UnicodeString&);
    AIErr (*GetSymbolPatternDisplayName)(ai::UnicodeString&);
    AIErr (*SetSymbolPatternBaseName)(AIPatternHandle, ai::UnicodeString&);
    AIErr (*NewInstanceCenteredInView)(AIPatternHandle, ai::int16, AIArtHandle, AIArtHandle*);
    AIErr (*NewInstanceAtLocation)(AIPatternHandle, AIRealPoint, ai::int16, AIArtHandle,
                                   AIArtHandle*);
    AIErr (*NewInstanceWithTransform)(AIPatternHandle, AIRealMatrix*, ai::int16, AIArtHandle,
                                      AIArtHandle*);
    AIErr (*GetSymbolPatternOfSymbolArt)(AIArtHandle, AIPatternHandle*);
    AIErr (*SetSymbolPatternOfSymbolArt)(AIArtHandle, AIPatternHandle);
    AIErr (*GetHardTransformOfSymbolArt)(AIArtHandle, AIRealMatrix*);
    AIErr (*SetHardTransformOfSymbolArt)(AIArtHandle, AIRealMatrix*);
    AIErr (*GetSoftTransformOfSymbolArt)(AIArtHandle, AIRealMatrix*);
    AIErr (*SetSoftTransformOfSymbolArt)(AIArtHandle, AIRealMatrix*);
    AIErr (*InsertExpandedSymbolArt)(AIArtHandle, ai::int16, AIArtHandle, AIArtHandle*);
    AIBoolean (*IsSymbolPatternListed)(AIPatternHandle);
    AIErr (*MakeSymbolPatternListed)(AIPatternHandle);
    AIErr (*UnlistSymbolPattern)(AIPatternHandle);
    AIErr (*SortListedSymbolPatterns)();
    AIErr (*MoveSymbolPatternInList)(AIPatternHandle, ai::int32);
    AIBoolean (*ArtUsesSymbolPattern)(AIArtHandle, ai::int16, AIPatternHandle, AIPatternHandle*,
                                      AIPatternHandle***, ai::int32*, ai::int32*);
    AIErr (*BreakLinkToSymbol)(AIArtHandle, ai::int16, AIArtHandle, AIArtHandle*);
    AIErr (*RetargetForCurrentDocument)(AIPatternHandle, AIPatternHandle*);
    AIErr (*CopySymbolPatternOutline)(AIPatternHandle, ai::int16, AIArtHandle, AIArtHandle*,
                                      ai::int32);
    AIErr (*InsertSymbolArtOutline)(AIArtHandle, ai::int16, AIArtHandle, AIArtHandle*, ai::int32);
    AIErr (*PeekCachedPatternOutline)(AIPatternHandle, AIArtHandle*, ai::int32);
    AIErr (*SetSymbolPatternFromSelGetBounds)(AIPatternHandle, AIRealRect*);
    ReservedSlot SetSymbolExportType;
    ReservedSlot GetSymbolExportType;
    AIErr (*SetSymbolEnableGuides)(AIPatternHandle, AIBoolean);
    AIErr (*GetSymbolEnableGuides)(AIPatternHandle, AIBoolean*);
    AIErr (*SetSymbol9SliceGrid)(AIPatternHandle, AIRealRect);
    AIErr (*GetSymbol9SliceGrid)(AIPatternHandle, AIRealRect*);
    AIErr (*SetEditingSymbolDefinition)(AIPatternHandle, AIArtHandle);
    AIErr (*EndEditingSymbolDefinition)(AIPatternHandle, AIBoolean);
    AIBoolean (*GetSymbolEditMode)();
    AIErr (*ExitSymbolEditMode)();
    AIBoolean (*EditingSymbolPattern)(AIPatternHandle);
    AIBoolean (*IsSymbolEditingArtType)(AIArtHandle, AIPatternHandle*);
    AIErr (*ValidateSymbolEditingArt)(AIPatternHandle, AIArtHandle);
    AIErr (*SetSymbolPixelPerfect)(AIPatternHandle, AIBoolean);
    AIErr (*GetSymbolEnablePixelPerfect)(AIPatternHandle, AIBoolean*);
    AIErr (*IsSymbolArt9SliceScaled)(AIArtHandle, AIBoolean*);
    AIErr (*RetargetForCurrentDocumentAsUnlisted)(AIPatternHandle, AIPatternHandle*);
};
