#pragma once

#include "host/Art.h"
#include "host/Handles.h"
#include "host/Types.h"

inline constexpr char kAIDocumentSuite[] = "AI Document Suite";
inline constexpr ai::int32 kAIDocumentSuiteVersion = 13;

struct AIDocumentSuite {
    AIErr (*GetDocumentFileSpecification)(ai::FilePath&);
    AIErr (*GetDocumentPageOrigin)(AIRealPoint*);
    AIErr (*SetDocumentPageOrigin)(AIRealPoint*);
    AIErr (*SetDocumentRulerOrigin)(AIRealPoint*);
    AIErr (*GetDocumentRulerUnits)(ai::int16*);
    AIErr (*SetDocumentRulerUnits)(ai::int16);
    ReservedSlot GetDocumentCropStyle;
    ReservedSlot SetDocumentCropStyle;
    ReservedSlot GetDocumentPrintRecord;
    ReservedSlot SetDocumentPrintRecord;
    AIErr (*GetDocumentSetup)(AIDocumentSetup*);
    AIErr (*SetDocumentSetup)(AIDocumentSetup*);
    AIErr (*GetDocumentModified)(AIBoolean*);
    AIErr (*SetDocumentModified)(AIBoolean);
    AIErr (*GetDocumentFileFormat)(AIFileFormatHandle*);
    AIErr (*SetDocumentFileFormat)(AIFileFormatHandle);
    ReservedSlot GetDocumentFileFormatParameters;
    ReservedSlot SetDocumentFileFormatParameters;
    AIErr (*RedrawDocument)();
    AIErr (*GetDocument)(AIDocumentHandle*);
    AIErr (*WriteDocument)(const ai::FilePath&, const char*, AIBoolean);
    ReservedSlot GetDocumentMiPrintRecord;
    ReservedSlot SetDocumentMiPrintRecord;
    AIErr (*GetDocumentRulerOrigin)(AIRealPoint*);
    AIErr (*UpdateLinks)(AIBoolean*);
    AIErr (*GetDocumentZoomLimit)(AIReal*, AIReal*);
    AIErr (*GetDocumentMaxArtboardBounds)(AIRealRect*);
    AIErr (*DocumentExists)(AIDocumentHandle, AIBoolean*);
    AIErr (*GetDictionary)(AIDictionaryRef*);
    AIErr (*GetDocumentColorModel)(ai::int16*);
    AIErr (*SetDocumentColorModel)(ai::int16);
    ReservedSlot GetDocumentProfiles;
    ReservedSlot SetDocumentProfiles;
    AIErr (*Copy)();
    AIErr (*Cut)();
    AIErr (*Paste)();
    AIErr (*SyncDocument)();
    AIErr (*GetDocumentTargeting)(ai::int16*, ai::int16*, ai::int16*);
    AIErr (*SetDocumentTargeting)(ai::int16, ai::int16, ai::int16);
    AIErr (*GetNonRecordedDictionary)(AIDictionaryRef*);
    ai::int32 (*GetAIVersion)();
    AIErr (*DocumentHasTransparency)(AIBoolean*, AIBoolean);
    AIErr (*DocumentHasSpotColorArt)(AIBoolean*);
    AIErr (*GetDocumentAssetMgmtInfo)(AIBoolean*, ai::int32*, AIBoolean*, const char**, AIBoolean*,
                                      char*);
    AIErr (*SetDocumentAssetMgmtInfo)(AIBoolean*, AIBoolean*, const char*, AIBoolean*);
    AIErr (*GetDocumentURL)(AIDocumentHandle, const char**);
    AIErr (*GetDocumentXAP)(const char**);
    AIErr (*SetDocumentXAP)(const char*);
    AIErr (*SuspendTextReflow)();
    AIErr (*ResumeTextReflow)();
    ReservedSlot GetTextSelection;
    AIErr (*HasTextFocus)(AIBoolean*);
    AIErr (*HasTextCaret)(AIBoolean*);
    ReservedSlot GetTextFocus;
    ReservedSlot SetTextFocus;
    AIErr (*LoseTextFocus)();
    ReservedSlot GetDocumentTextResources;
    AIErr (*WriteDocumentMacInformationResource)(const ai::FilePath&);
    AIErr (*WriteDocumentWithOptions)(const ai::FilePath&, const char*, ai::int32, AIBoolean);
    AIErr (*DocumentHasOverprint)(AIBoolean*);
    AIErr (*DocumentHasManagedLinks)(AIDocumentHandle, AIBoolean*);
    ReservedSlot GetDocumentSpotColorMode;
    ReservedSlot SetDocumentSpotColorMode;
    AIErr (*Undo)();
    AIErr (*Redo)();
    AIErr (*DocumentRasterAttributes)(AIBoolean*, AIBoolean*);
    ReservedSlot GetDocumentStartupProfile;
    AIErr (*GetDocumentBleeds)(AIRealRect*);
    AIErr (*SetDocumentBleeds)(const AIRealRect&);
    AIErr (*SetDocumentPixelPerfectStatus)(AIBoolean);
    AIBoolean (*GetDocumentPixelPerfectStatus)();
};
