#pragma once

#include "host/Handles.h"
#include "host/Types.h"

// A macro of the Windows headers has this name.
#undef DrawText

inline constexpr char kAIAnnotatorDrawerSuite[] = "AI Annotator Drawer Suite";
inline constexpr ai::int32 kAIAnnotatorDrawerSuiteVersion = 4;

struct AIAnnotatorDrawerSuite {
    void (*SetColor)(AIAnnotatorDrawer*, const AIRGBColor&);
    void (*GetColor)(AIAnnotatorDrawer*, AIRGBColor&);
    void (*SetLineWidth)(AIAnnotatorDrawer*, AIReal);
    AIReal (*GetLineWidth)(AIAnnotatorDrawer*);
    void (*SetLineDashed)(AIAnnotatorDrawer*, AIBoolean);
    AIBoolean (*GetLineDashed)(AIAnnotatorDrawer*);
    AIErr (*DrawLine)(AIAnnotatorDrawer*, const AIPoint&, const AIPoint&);
    AIErr (*DrawRect)(AIAnnotatorDrawer*, const AIRect&, AIBoolean);
    AIErr (*DrawPolygon)(AIAnnotatorDrawer*, const AIPoint*, ai::uint32, AIBoolean);
    AIErr (*DrawEllipse)(AIAnnotatorDrawer*, const AIRect&, AIBoolean);
    /// Each set: the handle that leaves the former anchor, the one that enters the next, and that
    /// anchor itself.
    AIErr (*DrawBezier)(AIAnnotatorDrawer*, const AIPoint&, const AIPoint (*)[3], ai::uint32,
                        AIBoolean);
    AIErr (*SetLineDashedEx)(AIAnnotatorDrawer*, AIFloat*, ai::int32);
    AIErr (*GetLineDashedEx)(AIAnnotatorDrawer*, AIFloat*, ai::int32&);
    AIErr (*DrawText)(AIAnnotatorDrawer*, const ai::UnicodeString&, const AIPoint&);
    AIErr (*DrawTextAligned)(AIAnnotatorDrawer*, const ai::UnicodeString&, AIHorizAlignment,
                             AIVertAlignment, const AIRect&);
    AIErr (*GetTextBounds)(AIAnnotatorDrawer*, const ai::UnicodeString&, AIPoint*, AIBoolean,
                           AIRect&);
    void (*SetFontSize)(AIAnnotatorDrawer*, AIReal);
    AIReal (*GetFontSize)(AIAnnotatorDrawer*);
    AIErr (*SetFontPreset)(AIAnnotatorDrawer*, AIAnnotatorFont);
    ReservedSlot SetFontByFontKey;
    AIErr (*SetFontByName)(AIAnnotatorDrawer*, const ai::UnicodeString&);
    ReservedSlot GetFontKey;
    void (*GetFontName)(AIAnnotatorDrawer*, ai::UnicodeString&);
    void (*DefineClipStart)(AIAnnotatorDrawer*);
    void (*DefineClipEnd)(AIAnnotatorDrawer*);
    void (*ClearClip)(AIAnnotatorDrawer*);
    AIErr (*SetHighlightMode)(AIAnnotatorDrawer*, AIBoolean);
    AIBoolean (*GetHighlightMode)(AIAnnotatorDrawer*);
    AIErr (*DrawPNGImage)(AIAnnotatorDrawer*, const ai::uint8*, ai::uint32, const AIPoint&);
    AIErr (*DrawPNGImageCentered)(AIAnnotatorDrawer*, const ai::uint8*, ai::uint32, const AIRect&);
    ReservedSlot GetAGMPort;
    ReservedSlot ReleaseAGMPort;
    AIErr (*GetPortOptions)(AIAnnotatorDrawer*, ai::uint32, ai::uint32&);
    AIErr (*SetPortOptions)(AIAnnotatorDrawer*, ai::uint32, ai::uint32);
    AIErr (*SetOpacity)(AIAnnotatorDrawer*, AIReal);
    AIReal (*GetOpacity)(AIAnnotatorDrawer*);
};
