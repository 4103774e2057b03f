#pragma once

#include "host/Handles.h"
#include "host/SuiteId.h"
#include "host/Types.h"

inline constexpr char kAIDocumentViewSuite[] = "AI Document View Suite";
inline constexpr ai::int32 kAIDocumentViewSuiteVersion = 11;

struct AIDocumentViewSuite {
    /// What is seen of the canvas, in soft coordinates; null view: the current one.
    AIErr (*GetDocumentViewBounds)(AIDocumentViewHandle view, AIRealRect* bounds);
    AIErr (*GetDocumentViewCenter)(AIDocumentViewHandle, AIRealPoint*);
    AIErr (*SetDocumentViewCenter)(AIDocumentViewHandle, const AIRealPoint*);
    /// Pixels to a point; null view: the current one.
    AIErr (*GetDocumentViewZoom)(AIDocumentViewHandle view, AIReal* zoom);
    AIErr (*SetDocumentViewZoom)(AIDocumentViewHandle, AIReal);
    /// Rounded to the nearest pixel; y downwards.
    AIErr (*ArtworkPointToViewPoint)(AIDocumentViewHandle view, const AIRealPoint* artwork,
                                     AIPoint* pixel);
    AIErr (*ViewPointToArtworkPoint)(AIDocumentViewHandle, const AIPoint*, AIRealPoint*);
    AIErr (*CountDocumentViews)(ai::int32*);
    /// 0 is the current view; from 1 those of the current document.
    AIErr (*GetNthDocumentView)(ai::int32 index, AIDocumentViewHandle* view);
    /// The same without rounding.
    AIErr (*FixedArtworkPointToViewPoint)(AIDocumentViewHandle view, const AIRealPoint* artwork,
                                          AIRealPoint* pixel);
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
    ReservedSlot GetShowPageTiling, SetShowPageTiling;
    AIErr (*GetGridOptions)(AIDocumentViewHandle, AIBoolean*, AIBoolean*);
    AIErr (*SetGridOptions)(AIDocumentViewHandle, AIBoolean, AIBoolean);
    AIErr (*GetShowTransparencyGrid)(AIDocumentViewHandle, AIBoolean*);
    AIErr (*SetShowTransparencyGrid)(AIDocumentViewHandle, AIBoolean);
    AIErr (*GetDocumentViewDocument)(AIDocumentViewHandle, AIDocumentHandle*);
    ReservedSlot ForceDocumentViewsOnScreen;
    AIErr (*GetShowGuides)(AIDocumentViewHandle, AIBoolean*);
    AIErr (*SetShowGuides)(AIDocumentViewHandle, AIBoolean);
    AIErr (*GetShowEdges)(AIDocumentViewHandle, AIBoolean*);
    AIErr (*SetShowEdges)(AIDocumentViewHandle, AIBoolean);
    ReservedSlot SaveImage;
    AIErr (*IsArtboardRulerVisible)(AIDocumentViewHandle, AIBoolean*);
    AIErr (*SetArtboardRulerVisible)(AIDocumentViewHandle, AIBoolean);
    ReservedSlot CountOPPPlates, GetNthOPPPlate, GetOPPPlateState, SetOPPPlateState;
    AIErr (*SetDocumentViewStyle)(AIDocumentViewHandle, ai::int16, ai::int16);
    AIErr (*IsRulerInArtboardCoordinates)(AIDocumentViewHandle, AIBoolean*);
    AIErr (*UseArtboardCoordinatesInRuler)(AIDocumentViewHandle, AIBoolean);
};

template <>
struct ai::SuiteId<AIDocumentViewSuite>
    : ai::SuiteIdentity<kAIDocumentViewSuite, kAIDocumentViewSuiteVersion> {};
