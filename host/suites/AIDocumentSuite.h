#pragma once

#include "host/Art.h"
#include "host/Handles.h"
#include "host/SuiteId.h"
#include "host/Types.h"

inline constexpr char kAIDocumentSuite[] = "AI Document Suite";
inline constexpr ai::int32 kAIDocumentSuiteVersion = 13;

struct AIDocumentSuite {
    AIErr (*GetDocumentFileSpecification)(ai::FilePath&);
    AIErr (*GetDocumentPageOrigin)(AIRealPoint*);
    ReservedSlot SetDocumentPageOrigin;
    AIErr (*SetDocumentRulerOrigin)(AIRealPoint*);
    /// 0 unknown, 1 inches, 2 cm, 3 points, 4 picas, 5 mm, 6 pixels, 7 Q.
    AIErr (*GetDocumentRulerUnits)(ai::int16* units);
    AIErr (*SetDocumentRulerUnits)(ai::int16);
    ReservedSlot GetDocumentCropStyle, SetDocumentCropStyle, GetDocumentPrintRecord,
        SetDocumentPrintRecord;
    AIErr (*GetDocumentSetup)(AIDocumentSetup*);
    AIErr (*SetDocumentSetup)(AIDocumentSetup*);
    AIErr (*GetDocumentModified)(AIBoolean*);
    AIErr (*SetDocumentModified)(AIBoolean);
    ReservedSlot GetDocumentFileFormat, SetDocumentFileFormat, GetDocumentFileFormatParameters,
        SetDocumentFileFormatParameters;
    /// At once, not when the message returns.
    AIErr (*RedrawDocument)();
    /// Fails when none is open.
    AIErr (*GetDocument)(AIDocumentHandle* document);
    ReservedSlot WriteDocument, GetDocumentMiPrintRecord, SetDocumentMiPrintRecord;
    AIErr (*GetDocumentRulerOrigin)(AIRealPoint*);
    ReservedSlot UpdateLinks;
    AIErr (*GetDocumentZoomLimit)(AIReal*, AIReal*);
    /// The canvas, in soft coordinates.
    AIErr (*GetDocumentMaxArtboardBounds)(AIRealRect* bounds);
    AIErr (*DocumentExists)(AIDocumentHandle, AIBoolean*);
    AIErr (*GetDictionary)(AIDictionaryRef*);
    AIErr (*GetDocumentColorModel)(ai::int16*);
    ReservedSlot SetDocumentColorModel, GetDocumentProfiles, SetDocumentProfiles;
    AIErr (*Copy)();
    ReservedSlot Cut, Paste;
    AIErr (*SyncDocument)();
    ReservedSlot GetDocumentTargeting, SetDocumentTargeting;
    AIErr (*GetNonRecordedDictionary)(AIDictionaryRef*);
    ai::int32 (*GetAIVersion)();
    ReservedSlot DocumentHasTransparency, DocumentHasSpotColorArt, GetDocumentAssetMgmtInfo,
        SetDocumentAssetMgmtInfo, GetDocumentURL, GetDocumentXAP, SetDocumentXAP, SuspendTextReflow,
        ResumeTextReflow, GetTextSelection;
    AIErr (*HasTextFocus)(AIBoolean*);
    AIErr (*HasTextCaret)(AIBoolean*);
    ReservedSlot GetTextFocus, SetTextFocus, LoseTextFocus, GetDocumentTextResources,
        WriteDocumentMacInformationResource, WriteDocumentWithOptions, DocumentHasOverprint,
        DocumentHasManagedLinks, GetDocumentSpotColorMode, SetDocumentSpotColorMode;
    AIErr (*Undo)();
    AIErr (*Redo)();
    ReservedSlot DocumentRasterAttributes, GetDocumentStartupProfile, GetDocumentBleeds,
        SetDocumentBleeds, SetDocumentPixelPerfectStatus, GetDocumentPixelPerfectStatus;
};

template <>
struct ai::SuiteId<AIDocumentSuite> : ai::SuiteIdentity<kAIDocumentSuite, kAIDocumentSuiteVersion> {
};
