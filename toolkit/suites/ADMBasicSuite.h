#pragma once

#include "host/SuiteId.h"
#include "toolkit/suites/ADMTypes.h"

// Include it behind the system's headers, whose macro of that name would rename a slot.
#undef ChooseColor

inline constexpr char kADMBasicSuite[] = "ADM Basic Suite";
inline constexpr ai::int32 kADMBasicSuiteVersion = 10;

/// What belongs to no dialog: strings, alerts, the screen, numbers as texts.
struct ADMBasicSuite {
    ADMErr (*GetIndexString)(SPPluginRef, ADMInt32, ADMInt32, char*, ADMInt32);
    ADMErr (*GetIndexStringW)(SPPluginRef, ADMInt32, ADMInt32, ADMUnicode*, ADMInt32);
    void (*Beep)();
    void (*ErrorAlert)(const char*);
    void (*ErrorAlertW)(const ADMUnicode*);
    void (*MessageAlert)(const char*);
    void (*MessageAlertW)(const ADMUnicode*);
    ADMAnswer (*QuestionAlert)(const char*);
    ADMAnswer (*QuestionAlertW)(const ADMUnicode*);
    ADMAnswer (*YesNoAlert)(const char*);
    ADMAnswer (*YesNoAlertW)(const ADMUnicode*);
    ADMBoolean (*GetScreenDimensions)(const ADMPoint*, ADMRect*);
    void (*EnableToolTips)(ADMBoolean);
    ADMBoolean (*AreToolTipsEnabled)();
    void (*ValueToString)(float, char*, ADMInt32, ADMUnits, ADMInt32, ADMBoolean);
    void (*ValueToStringW)(float, ADMUnicode*, ADMInt32, ADMUnits, ADMInt32, ADMBoolean);
    ADMBoolean (*StringToValue)(const char*, float*, ADMUnits);
    ADMBoolean (*StringToValueW)(const ADMUnicode*, float*, ADMUnits);
    ADMBoolean (*StandardGetFileDialog)(const char*, const ADMPlatformFileTypesSpecification3*,
                                        const SPPlatformFileSpecification*, const char*,
                                        SPPlatformFileSpecification*);
    ADMBoolean (*StandardGetFileDialogW)(const ADMUnicode*,
                                         const ADMPlatformFileTypesSpecification3*,
                                         const SPPlatformFileSpecification*, const char*,
                                         SPPlatformFileSpecification*);
    ADMBoolean (*StandardGetDirectoryDialog)(const char*, const SPPlatformFileSpecification*,
                                             SPPlatformFileSpecification*);
    ADMBoolean (*StandardGetDirectoryDialogW)(const ADMUnicode*, const SPPlatformFileSpecification*,
                                              SPPlatformFileSpecification*);
    ADMBoolean (*StandardPutFileDialog)(const char*, const ADMPlatformFileTypesSpecification3*,
                                        const SPPlatformFileSpecification*, const char*,
                                        SPPlatformFileSpecification*);
    ADMBoolean (*StandardPutFileDialogW)(const ADMUnicode*,
                                         const ADMPlatformFileTypesSpecification3*,
                                         const SPPlatformFileSpecification*, const char*,
                                         SPPlatformFileSpecification*);
    ADMBoolean (*ChooseColor)(ADMPoint, const ADMRGBColor*, ADMRGBColor*);
    void (*SetAppUnits)(ADMUnits, ADMUnits);
    ADMUnits (*GetAppUnits)(ADMUnits);
    void (*SetNumbersArePoints)(ADMBoolean);
    ADMBoolean (*GetNumbersArePoints)();
    void (*SetDefaultIncrements)(ADMUnits, float, float);
    void (*GetDefaultIncrements)(ADMUnits, float*, float*);
    void (*AboutBox)(SPPluginRef, const char*, const char*);
    void (*AboutBoxW)(SPPluginRef, const ADMUnicode*, const ADMUnicode*);
    ADMBoolean (*AreToolTipsSticky)(ADMDialogRef);
    void (*GetToolTipDelays)(ADMInt32*, ADMInt32*);
    ADMErr (*SetWindowUIMode)(ADMWindowUIMode);
    ADMWindowUIMode (*GetWindowUIMode)();
    ADMErr (*SetUIBrightness)(ADMUIBrightness);
    ADMUIBrightness (*GetUIBrightness)();
    void (*SetUsePersistentPaletteDrawers)(ADMBoolean);
    ADMBoolean (*GetUsePersistentPaletteDrawers)();
    void (*SetUseUIAnimations)(ADMBoolean);
    ADMBoolean (*GetUseUIAnimations)();
    ADMBoolean (*GetWorkspaceBounds)(ADMRect*);
    ADMBoolean (*GetDocumentAreaBounds)(ADMBoolean, ADMRect*);
    ADMBoolean (*GetPaletteLayoutBounds)(ADMRect*);
    void (*SetPlatformCursor)(SPPluginRef, ADMInt32);
    void (*PluginAboutBox)(const char*, const char*);
    void (*PluginAboutBoxW)(const ADMUnicode*, const ADMUnicode*);
    void (*SetAlertButtonText)(const char*, const char*, const char*);
    void (*SetAlertButtonTextW)(const ADMUnicode*, const ADMUnicode*, const ADMUnicode*);
    void (*ShowToolTip)(const ADMPoint*, const char*);
    void (*ShowToolTipW)(const ADMPoint*, const ADMUnicode*);
    void (*HideToolTip)();
    ADMErr (*CreateMenu)(ADMListRef*);
    ADMErr (*DisplayMenu)(ADMListRef, ADMDialogRef, ADMPoint);
    ADMErr (*DestroyMenu)(ADMListRef);
    ADMBoolean (*GetLastADMError)(ADMInt32*, ADMInt32*);
    ADMBoolean (*ADMColorToRGBColor)(ADMColor, ADMRGBColor*);
    void (*SetAppFPS)(float);
    float (*GetAppFPS)();
    void (*LightweightErrorAlert)(const char*);
    void (*LightweightErrorAlertW)(const ADMUnicode*);
    ADMBoolean (*LookUpZString)(SPPluginRef, const char*, char*, ADMUInt32*);
    ADMBoolean (*LookUpZStringW)(SPPluginRef, const char*, ADMUnicode*, ADMUInt32*);
};

template <>
struct ai::SuiteId<ADMBasicSuite> : ai::SuiteIdentity<kADMBasicSuite, kADMBasicSuiteVersion> {};
