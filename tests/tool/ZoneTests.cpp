#include "tests/tool/Drawing.h"
#include "tests/tool/KeysHeld.h"

using namespace facetta;
using namespace facetta::tests;
using platform::Key;

TEST_CASE("cursor and Alt hint by what is under the cursor") {
    struct Row {
        const char* where;
        double sectors;
        double radius;
        ToolZone zone;
        ai::int32 cursor;
        HintId pending; ///< with Alt, for pending axes
        HintId onLayer;
    };
    const Row rows[] = {
        {"a sector", 1.3, 200, ToolZone::Sector, 16021, HintId::SpecifySector,
         HintId::SpecifySector},
        {"an axis", 2, 200, ToolZone::Axis, 16022, HintId::None, HintId::RepositionLayerAxes},
        {"the handle", 0.5, 200, ToolZone::Axis, 16022, HintId::None, HintId::RepositionLayerAxes},
        {"the origin", 0, 0, ToolZone::Origin, 16022, HintId::None, HintId::RepositionLayerAxes},
    };
    for (const bool onLayer : {false, true}) {
        Drawing session(/*selected*/ false);
        if (onLayer) session.makeLive();
        for (const Row& row : rows) {
            INFO(row.where, onLayer ? " of a layer's axes" : " of pending axes");
            session.tool().hint = {};
            const AIRealPoint place = session.onRay(row.sectors, row.radius);
            {
                const KeysHeld held({Key::Alt});
                session.host.track({.at = place});
            }
            CHECK(session.tool().zone == row.zone);
            CHECK(session.host.user.cursor == row.cursor);
            CHECK(session.tool().sectorHandleHighlighted == (row.sectors == 0.5));
            const HintId expected = onLayer ? row.onLayer : row.pending;
            CHECK(session.tool().hint.id == expected);
            CHECK(session.tool().hint.shown == (expected != HintId::None));
            session.host.track({.at = place});
            CHECK_FALSE(session.tool().hint.shown);
        }
    }
}
