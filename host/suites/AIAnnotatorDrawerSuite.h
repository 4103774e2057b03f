#pragma once

#include "host/Handles.h"
#include "host/SuiteId.h"
#include "host/Types.h"

// A macro of the Windows headers has this name.
#undef DrawText

inline constexpr char kAIAnnotatorDrawerSuite[] = "AI Annotator Drawer Suite";
inline constexpr ai::int32 kAIAnnotatorDrawerSuiteVersion = 4;

struct AIAnnotatorDrawerSuite {
    /// For lines, shapes and texts from here on.
    void (*SetColor)(AIAnnotatorDrawer* drawer, const AIRGBColor& color);
    void (*GetColor)(AIAnnotatorDrawer*, AIRGBColor&);
    /// In document points; 1 when not set.
    void (*SetLineWidth)(AIAnnotatorDrawer* drawer, AIReal width);
    AIReal (*GetLineWidth)(AIAnnotatorDrawer*);
    /// With the dashes of the host's choice.
    void (*SetLineDashed)(AIAnnotatorDrawer* drawer, AIBoolean dashed);
    AIBoolean (*GetLineDashed)(AIAnnotatorDrawer*);
    /// In view pixels, as all places here.
    AIErr (*DrawLine)(AIAnnotatorDrawer* drawer, const AIPoint& start, const AIPoint& end);
    /// Outlined, or filled when `fill` is not 0.
    AIErr (*DrawRect)(AIAnnotatorDrawer* drawer, const AIRect& rect, AIBoolean fill);
    /// Closed by itself.
    AIErr (*DrawPolygon)(AIAnnotatorDrawer* drawer, const AIPoint* points, ai::uint32 count,
                         AIBoolean fill);
    /// Inscribed in `rect`.
    AIErr (*DrawEllipse)(AIAnnotatorDrawer* drawer, const AIRect& rect, AIBoolean fill);
    /// From `start` along `count` curves. Each set: the handle that leaves the former anchor, the
    /// one that enters the next, and that anchor itself.
    AIErr (*DrawBezier)(AIAnnotatorDrawer* drawer, const AIPoint& start, const AIPoint (*sets)[3],
                        ai::uint32 count, AIBoolean fill);
    /// Dashes and gaps by turns, in document points; 12 at most.
    AIErr (*SetLineDashedEx)(AIAnnotatorDrawer* drawer, AIFloat* lengths, ai::int32 count);
    AIErr (*GetLineDashedEx)(AIAnnotatorDrawer*, AIFloat*, ai::int32&);
    /// One line of text above and to the right of that pixel.
    AIErr (*DrawText)(AIAnnotatorDrawer* drawer, const ai::UnicodeString& text,
                      const AIPoint& bottomLeft);
    AIErr (*DrawTextAligned)(AIAnnotatorDrawer*, const ai::UnicodeString&, AIHorizAlignment,
                             AIVertAlignment, const AIRect&);
    /// The box that `DrawText` would fill; `position` may be null.
    AIErr (*GetTextBounds)(AIAnnotatorDrawer* drawer, const ai::UnicodeString& text,
                           AIPoint* position, AIBoolean useFallback, AIRect& bounds);
    /// In document points.
    void (*SetFontSize)(AIAnnotatorDrawer* drawer, AIReal size);
    AIReal (*GetFontSize)(AIAnnotatorDrawer*);
    AIErr (*SetFontPreset)(AIAnnotatorDrawer*, AIAnnotatorFont);
    ReservedSlot SetFontByFontKey;
    AIErr (*SetFontByName)(AIAnnotatorDrawer*, const ai::UnicodeString&);
    ReservedSlot GetFontKey;
    void (*GetFontName)(AIAnnotatorDrawer*, ai::UnicodeString&);
    /// The shapes filled until `DefineClipEnd` are an area and are not drawn.
    void (*DefineClipStart)(AIAnnotatorDrawer* drawer);
    /// From here on nothing is drawn outside of that area, until `ClearClip`.
    void (*DefineClipEnd)(AIAnnotatorDrawer* drawer);
    void (*ClearClip)(AIAnnotatorDrawer* drawer);
    AIErr (*SetHighlightMode)(AIAnnotatorDrawer*, AIBoolean);
    AIBoolean (*GetHighlightMode)(AIAnnotatorDrawer*);
    AIErr (*DrawPNGImage)(AIAnnotatorDrawer*, const ai::uint8*, ai::uint32, const AIPoint&);
    AIErr (*DrawPNGImageCentered)(AIAnnotatorDrawer*, const ai::uint8*, ai::uint32, const AIRect&);
    ReservedSlot GetAGMPort, ReleaseAGMPort;
    AIErr (*GetPortOptions)(AIAnnotatorDrawer*, ai::uint32, ai::uint32&);
    /// Sets the bits of `which` to those of `options`.
    AIErr (*SetPortOptions)(AIAnnotatorDrawer* drawer, ai::uint32 which, ai::uint32 options);
    /// 0 to 1, for what is drawn from here on.
    AIErr (*SetOpacity)(AIAnnotatorDrawer* drawer, AIReal opacity);
    AIReal (*GetOpacity)(AIAnnotatorDrawer*);
};

template <>
struct ai::SuiteId<AIAnnotatorDrawerSuite>
    : ai::SuiteIdentity<kAIAnnotatorDrawerSuite, kAIAnnotatorDrawerSuiteVersion> {};
