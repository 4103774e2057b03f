#pragma once

#include "host/Handles.h"
#include "host/Types.h"

inline constexpr char kAIAnnotatorSuite[] = "AI Annotator Suite";
inline constexpr ai::int32 kAIAnnotatorSuiteVersion = 5;

struct AIAnnotatorSuite {
    AIErr (*AddAnnotator)(SPPluginRef, const char*, AIAnnotatorHandle*);
    AIErr (*GetAnnotatorName)(AIAnnotatorHandle, const char**);
    AIErr (*GetAnnotatorActive)(AIAnnotatorHandle, AIBoolean*);
    AIErr (*SetAnnotatorActive)(AIAnnotatorHandle, AIBoolean);
    AIErr (*GetAnnotatorPlugin)(AIAnnotatorHandle, SPPluginRef*);
    AIErr (*CountAnnotators)(ai::int32*);
    AIErr (*GetNthAnnotator)(ai::int32, AIAnnotatorHandle*);
    AIErr (*InvalAnnotationRect)(AIDocumentViewHandle, const AIRect*);
    AIErr (*SetAnnotatorAlternatePlugin)(AIAnnotatorHandle, SPPluginRef);
    AIErr (*GetAnnotatorAlternatePlugin)(AIAnnotatorHandle, SPPluginRef*);
    AIErr (*GetAnnotatorOptions)(AIAnnotatorHandle, AIAnnotatorOptionsFlags*);
    AIErr (*SetAnnotatorOptions)(AIAnnotatorHandle, AIAnnotatorOptionsFlags);
};
