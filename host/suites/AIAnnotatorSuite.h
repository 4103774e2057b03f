#pragma once

#include "host/Handles.h"
#include "host/SuiteId.h"
#include "host/Types.h"

inline constexpr char kAIAnnotatorSuite[] = "AI Annotator Suite";
inline constexpr ai::int32 kAIAnnotatorSuiteVersion = 5;

struct AIAnnotatorSuite {
    /// Good until the plug-in ends.
    AIErr (*AddAnnotator)(SPPluginRef self, const char* name, AIAnnotatorHandle* annotator);
    AIErr (*GetAnnotatorName)(AIAnnotatorHandle, const char**);
    AIErr (*GetAnnotatorActive)(AIAnnotatorHandle, AIBoolean*);
    AIErr (*SetAnnotatorActive)(AIAnnotatorHandle, AIBoolean);
    AIErr (*GetAnnotatorPlugin)(AIAnnotatorHandle, SPPluginRef*);
    AIErr (*CountAnnotators)(ai::int32*);
    AIErr (*GetNthAnnotator)(ai::int32, AIAnnotatorHandle*);
    /// Has `rect` (view pixels) drawn anew when there is time; null view: the current one.
    AIErr (*InvalAnnotationRect)(AIDocumentViewHandle view, const AIRect* rect);
    AIErr (*SetAnnotatorAlternatePlugin)(AIAnnotatorHandle, SPPluginRef);
    AIErr (*GetAnnotatorAlternatePlugin)(AIAnnotatorHandle, SPPluginRef*);
    AIErr (*GetAnnotatorOptions)(AIAnnotatorHandle, AIAnnotatorOptionsFlags*);
    /// Bits of `AIAnnotatorOptions`.
    AIErr (*SetAnnotatorOptions)(AIAnnotatorHandle annotator, AIAnnotatorOptionsFlags options);
};

template <>
struct ai::SuiteId<AIAnnotatorSuite>
    : ai::SuiteIdentity<kAIAnnotatorSuite, kAIAnnotatorSuiteVersion> {};
