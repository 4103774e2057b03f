#pragma once

#include "host/Handles.h"
#include "host/Types.h"

inline constexpr char kAIDocumentViewSuite[] = "AI Document View Suite";
inline constexpr ai::int32 kAIDocumentViewSuiteVersion = 11;

struct AIDocumentViewSuite {
    AIErr (*GetDocumentViewBounds)(AIDocumentViewHandle, AIRealRect*);
    AIErr (*GetDocumentViewCenter)(AIDocumentViewHandle, AIRealPoint*);
    AIErr (*SetDocumentViewCenter)(AIDocumentViewHandle, const AIRealPoint*);
    AIErr (*GetDocumentViewZoom)(AIDocumentViewHandle, AIReal*);
    AIErr (*SetDocumentViewZoom)(AIDocumentViewHandle, AIReal);
    AIErr (*ArtworkPointToViewPoint)(AIDocumentViewHandle, const AIRealPoint*, AIPoint*);
    AIErr (*ViewPointToArtworkPoint)(AIDocumentViewHandle, const AIPoint*, AIRealPoint*);
    AIErr (*CountDocumentViews)(ai::int32*);
    AIErr (*GetNthDocumentView)(ai::int32, AIDocumentViewHandle*);
    AIErr (*FixedArtworkPointToViewPoint)(AIDocumentViewHandle, const AIRealPoint*, AIRealPoint*);
    AIErr (*FixedViewPointToArtworkPoint)(AIDocumentViewHandle, const AIRealPoint*, AIRealPoint*);
    AIErr (*SetScreenMode)(AIDocumentViewHandle, AIScreenMode);
    AIErr (*GetScreenMode)(AIDocumentViewHandle, AIScreenMode*);
    ReservedSlot GetPageTiling;
    AIErr (*GetTemplateVisible)(AIDocumentViewHandle, AIBoolean*);
    AIErr (*DocumentViewScrollDelta)(AIDocumentViewHandle, AIRealPoint*);
    AIErr (*GetDocumentViewInvalidRect)(AIDocumentViewHandle, AIRealRect*);
    AIErr (*SetDocumentViewInvalidRect)(AIDocumentViewHandle, const AIRealRect*);
    AIErr (*GetDocumentViewStyle)(AIDocumentViewHandle, ai::int16*);
    AIErr (*SetDocumentViewInvalidDocumentRect)(AIDocumentViewHandle, const AIRealRect*);
    AIErr (*GetShowPageTiling)(AIBoolean*);
    AIErr (*SetShowPageTiling)(AIBoolean);
    AIErr (*GetGridOptions)(AIDocumentViewHandle, AIBoolean*, AIBoolean*);
    AIErr (*SetGridOptions)(AIDocumentViewHandle, AIBoolean, AIBoolean);
    AIErr (*GetShowTransparencyGrid)(AIDocumentViewHandle, AIBoolean*);
    AIErr (*SetShowTransparencyGrid)(AIDocumentViewHandle, AIBoolean);
    AIErr (*GetDocumentViewDocument)(AIDocumentViewHandle, AIDocumentHandle*);
    AIErr (*ForceDocumentViewsOnScreen)();
    AIErr (*GetShowGuides)(AIDocumentViewHandle, AIBoolean*);
    AIErr (*SetShowGuides)(AIDocumentViewHandle, AIBoolean);
    AIErr (*GetShowEdges)(AIDocumentViewHandle, AIBoolean*);
    AIErr (*SetShowEdges)(AIDocumentViewHandle, AIBoolean);
    AIErr (*SaveImage)(AIDocumentViewHandle, const ai::UnicodeString&, const AIPoint&);
    AIErr (*IsArtboardRulerVisible)(AIDocumentViewHandle, AIBoolean*);
    AIErr (*SetArtboardRulerVisible)(AIDocumentViewHandle, AIBoolean);
    AIErr (*CountOPPPlates)(AIDocumentViewHandle, ai::int32&);
    ReservedSlot GetNthOPPPlate;
    ReservedSlot GetOPPPlateState;
    ReservedSlot SetOPPPlateState;
    AIErr (*SetDocumentViewStyle)(AIDocumentViewHandle, ai::int16, ai::int16);
    AIErr (*IsRulerInArtboardCoordinates)(AIDocumentViewHandle, AIBoolean*);
    AIErr (*UseArtboardCoordinatesInRuler)(AIDocumentViewHandle, AIBoolean);
};
