#include "easel/validate/Acts.h"

#include <array>

namespace easel::validate {
namespace {

constexpr Stage kOpened = Stage::Opened;
constexpr Stage kTool = Stage::Tool;
constexpr Stage kPending = Stage::Pending;
constexpr Stage kOnLayer = Stage::OnLayer;
constexpr Stage kEdited = Stage::Edited;

constexpr const char* kToSelection = "preference Facetta FTApplySel on";
constexpr const char* kOriginFirst = "preference Facetta FTInitDragPO on";
constexpr const char* kOverlay = "preference Facetta FTUseOverlay on";
constexpr const char* kByHand = "preference Facetta FTAutoMirror off";

/// Three axes through 200, 200, the first to the right. The on-canvas dialog lies at 20, 30 in the
/// view, where nothing else is.
constexpr Act kActs[] = {
    // The tool
    {"choose-tool", kOpened, "tool \"Facetta Tool\"\nmove 250,260"},
    {"put-tool-away", kPending, "tool \"Adobe Select Tool\""},
    {"hover", kTool, "move 250,260\nmove 230,240"},
    {"hover-over-axes", kOnLayer,
     "move 200,200\nmove 280,200\nmove 280,150\nmove 150,150 with alt"},
    {"draw-axes", kTool, "press 200,200\ndrag 300,180 in 3\nrelease"},
    {"click-axes", kTool, "click 210,190"},
    {"draw-origin", kTool, "press 180,180\ndrag 220,210 in 3\nrelease", "", kOriginFirst},
    {"draw-with-shift", kTool, "press 200,200\ndrag 300,180 with shift\nrelease"},
    {"draw-with-space", kTool,
     "press 200,200\ndrag 300,180\ndrag 310,190 with space\nrelease 310,190"},
    {"draw-to-perpendicular", kTool, "press 200,200\ndrag 296,176\ndrag 298,178 with ctrl\nrelease",
     "smart-guides on"},
    {"draw-by-keys", kTool,
     "press 200,200\ndrag 300,180\ndrag 300,181 with a\ndrag 300,182 with u\ndrag 300,183 with 7\n"
     "drag 300,184 with ]\nrelease"},
    {"escape-from-drawing", kTool,
     "press 200,200\ndrag 300,180\ndrag 300,170 with escape\nrelease"},
    {"count-up", kPending, "key ] 2"},
    {"count-down", kPending, "key ["},
    {"move-origin", kPending, "press 200,200\ndrag 220,210 in 2\nrelease"},
    {"turn-axes", kPending, "press 300,200\ndrag 290,230 in 2\nrelease"},
    {"turn-axes-with-shift", kPending, "press 300,200\ndrag 290,230 with shift\nrelease"},
    {"escape-from-turning", kPending,
     "press 300,200\ndrag 290,230\ndrag 290,240 with escape\nrelease"},
    {"apply-to-layer", kPending, "tool options"},
    {"apply-to-selection", kPending, "tool options", "select all", kToSelection},

    // The dialog on the canvas
    {"canvas-apply-to-selection", kPending, "click 30,60px", "select all"},
    {"canvas-apply-to-layer", kPending, "click 30,90px"},
    {"canvas-cancel", kPending, "click 30,110px"},
    {"canvas-move-dialog", kPending, "press 100,44px\ndrag 140,80px in 3\nrelease"},
    {"canvas-apply-edit", kEdited, "click 30,90px"},
    {"canvas-cancel-edit", kEdited, "click 30,110px"},

    // The axes of a layer
    {"edit-layer-angle", kOnLayer, "press 300,200\ndrag 300,150 in 3\nrelease"},
    {"edit-layer-origin", kOnLayer, "press 200,200\ndrag 230,190 in 3\nrelease"},
    {"edit-with-guides", kOnLayer, "press 300,200\ndrag 300,150\nrelease",
     "panel flyout \"Add Guides along Axes\""},
    {"escape-from-editing", kOnLayer,
     "press 300,200\ndrag 300,150\ndrag 300,140 with escape\nrelease"},
    {"edit-further", kEdited, "press 200,200\ndrag 210,190\nrelease"},
    {"apply-edit", kEdited, "tool options"},
    {"reposition-by-line", kOnLayer,
     "press 300,200 with alt\ndrag 300,150 with alt\nrelease with alt"},
    {"reposition-by-origin", kOnLayer,
     "press 200,200 with alt\ndrag 230,190 in 2 with alt\nrelease with alt"},
    {"escape-from-repositioning", kOnLayer,
     "press 200,200 with alt\ndrag 230,190 with alt\ndrag 230,180 with alt escape\nrelease"},
    {"pick-sector", kOnLayer, "move 250,260 with alt\nclick 250,260 with alt"},

    // Dialogs
    {"dialog-x", kPending,
     "click 280,200\nclick 280,200\ndialog type 4 \"230\" then tab\ndialog click \"OK\""},
    {"dialog-angle", kPending,
     "click 280,200\nclick 280,200\ndialog type 8 \"45\" then tab\ndialog click \"OK\""},
    {"dialog-count-cancelled", kPending,
     "click 280,200\nclick 280,200\ndialog type 11 \"5\" then tab\ndialog click \"Cancel\""},
    {"dialog-of-layer", kOnLayer,
     "click 280,200\nclick 280,200\ndialog type 11 \"5\" then tab\ndialog click \"OK\""},
    {"dialog-of-layer-cancelled", kOnLayer,
     "click 280,200\nclick 280,200\ndialog type 8 \"45\" then tab\ndialog click \"Cancel\""},
    {"dialog-with-art", kOnLayer,
     "click 280,200 with alt\nclick 280,200 with alt\ndialog type 4 \"230\" then tab\ndialog click "
     "\"OK\""},
    {"preferences", kTool,
     "tool options with shift\ndialog click 3\ndialog click 6\ndialog click \"OK\""},
    {"preferences-cancelled", kPending,
     "tool options with shift\ndialog click 5\ndialog key escape"},
    {"about", kOpened, "menu \"About Facetta...\"\ndialog key tab\ndialog click \"Close\""},
    {"help", kOpened, "menu \"About Facetta...\"\ndialog click \"Help\""},
    {"licensing", kOpened, "menu \"Licensing...\""},

    // The panel
    {"panel-selection-mode", kPending, "panel click 1"},
    {"panel-layer-mode", kPending, "panel click 2", "select all", kToSelection},
    {"panel-active-off", kOnLayer, "panel click 3"},
    {"panel-active-on", kOnLayer, "panel click 3", "panel click 3"},
    {"panel-update", kOnLayer, "panel click 4", "select all\nnudge 3 4", kByHand},
    {"panel-apply-to-layer", kPending, "panel click 5"},
    {"panel-apply-to-selection", kPending, "panel click 5", "select all", kToSelection},
    {"panel-cancel", kPending, "panel click 6"},
    {"panel-remove", kOnLayer, "panel click 6"},
    {"panel-cancel-edit", kEdited, "panel click 6"},
    {"panel-x", kPending, "panel type 9 \"230\" then enter"},
    {"panel-y-of-layer", kOnLayer, "panel type 11 \"230\" then enter"},
    {"panel-y-of-layer-without-tool", kOnLayer, "panel type 11 \"230\" then enter",
     "tool \"Adobe Select Tool\""},
    {"panel-angle", kOnLayer, "panel type 13 \"10\" then enter"},
    {"panel-count", kOnLayer, "panel spin 15 up 2"},
    {"panel-overlay", kOnLayer, "panel click 16"},
    {"panel-opacity", kOnLayer, "panel type 20 \"40\" then enter", "", kOverlay},
    {"panel-slider", kOnLayer, "panel slide 18 40 in 3", "", kOverlay},
    {"panel-collapse", kOnLayer, "panel collapse"},
    {"panel-hide-and-show", kOnLayer, "panel hide\npanel show"},
    {"panel-from-menu", kPending, "menu \"Facetta Panel\""},

    // Its menu
    {"copy-axes", kOnLayer, "panel flyout \"Copy Axes\""},
    {"paste-as-provisional", kOnLayer, "panel flyout \"Paste Axes as Provisional\"",
     "panel flyout \"Copy Axes\"\nlayer add Sketch"},
    {"paste-to-layer", kOnLayer, "panel flyout \"Paste Axes to Layer\"",
     "panel flyout \"Copy Axes\"\nlayer add Sketch"},
    {"add-guides", kOnLayer, "panel flyout \"Add Guides along Axes\""},
    {"remove-guides", kOnLayer, "panel flyout \"Remove Guides from Axes\"",
     "panel flyout \"Add Guides along Axes\""},
    {"remove-all", kOnLayer, "panel flyout \"Remove All Layer Axes\""},
    {"centre-dialog", kPending, "panel flyout \"Center Annotation Menu\""},

    // What the user does without the plug-in
    {"nudge", kOnLayer, "nudge 3 4", "select all"},
    {"clear", kOnLayer, "clear", "select leaf"},
    {"paint", kOnLayer, "paint fill red", "select all"},
    {"draw-by-pen", kOnLayer, "click 320,140", "tool \"Adobe Pen Tool\"\nclick 300,150"},
    {"add-layer", kPending, "layer add Sketch"},
    {"lock-layer", kPending, "layer lock Ornament"},
    {"hide-layer", kOnLayer, "layer hide Ornament"},
    {"rename-layer", kOnLayer, "layer rename Ornament Leaves"},
    {"delete-layer", kOnLayer, "layer delete Ornament", "layer add Sketch"},
    {"leave-edited-layer", kEdited, "layer add Sketch"},
    {"undo", kOnLayer, "undo"},
    {"redo", kOnLayer, "redo", "undo"},
    {"undo-edit", kEdited, "undo"},
    {"select-none", kPending, "select none"},

    // Documents, view and time
    {"new-drawing", kPending, "new 300 300"},
    {"switch-drawing", kOnLayer, "switch 2", "new 300 300\nswitch 1"},
    {"close-drawing", kEdited, "close"},
    {"zoom", kPending, "zoom 2\ncentre 250,150"},
    {"window", kOnLayer, "window 300 200"},
    {"theme", kOnLayer, "theme dark"},
    {"constrain", kPending, "constrain 30"},
    {"wait", kOnLayer, "move 150,150 with alt\nwait 1500\nwait 1500"},
    {"redraw", kOnLayer, "redraw", "", kOverlay},
};

} // namespace

std::span<const Act> acts() { return kActs; }

const char* commonSettings() {
    return "preference Facetta FTCount 3\n"
           "preference Facetta FTAngle 0.0\n"
           "preference Facetta FTUseAnnoDlg on\n"
           "preference Facetta FTDlgPosX 20\n"
           "preference Facetta FTDlgPosY 30";
}

const char* lifeOfAxes() {
    return "tool \"Adobe Select Tool\"\n"
           "new 400 400\n"
           "panel show\n"
           "panel click 2\n"
           "tool \"Facetta Tool\"\n"
           "press 200,200\n"
           "drag 300,200\n"
           "release\n"
           "wait 3000\n" // for what was left to a timer
           "panel click 5\n"
           "expect undo \"Undo Apply Symmetry Axes to Layer\"\n"
           "undo\n"
           "close";
}

const char* linesTo(Stage stage) {
    // Each goes on where the one before has ended.
    constexpr std::array kLines = {
        "smart-guides off\npanel show",         "tool \"Facetta Tool\"",
        "press 200,200\ndrag 300,200\nrelease", "panel click 5",
        "press 300,200\ndrag 300,230\nrelease",
    };
    return kLines.at(static_cast<std::size_t>(stage));
}

} // namespace easel::validate
