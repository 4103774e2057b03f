#include "tool/drawing/DialogPlacement.h"

#include <doctest/doctest.h>

using namespace facetta;

TEST_CASE("the dialog is centred when it was never placed, and pulled into the view otherwise") {
    struct Row {
        const char* what;
        AIRect view; // left, top, right, bottom
        DialogPosition before;
        DialogPosition after;
    };
    const AIRect screen{0, 0, 1000, 800};
    const AIRect scrolled{100, 50, 900, 650};
    const Row rows[] = {
        {"never placed", screen, {kNeverPlaced, kNeverPlaced}, {404, 350}},
        {"never placed: the view's own corner is not added",
         scrolled,
         {kNeverPlaced, 7},
         {304, 250}},
        {"never placed: halves are cut", {0, 0, 999, 801}, {kNeverPlaced, 0}, {403, 350}},
        {"inside", screen, {300, 200}, {300, 200}},
        {"at the edges", screen, {808, 698}, {808, 698}},
        {"over the right edge", screen, {809, 200}, {808, 200}},
        {"left of the view", scrolled, {99, 100}, {100, 100}},
        {"above: a little below the edge", scrolled, {300, 49}, {300, 66}},
        {"below", scrolled, {300, 600}, {300, 548}},
        {"as far out as numbers go", screen, {2147483647, 2147483647}, {808, 698}},
        {"narrower than the dialog: the right edge wins", {0, 0, 150, 800}, {-20, 10}, {-42, 10}},
    };
    for (const auto& row : rows) {
        INFO(row.what);
        const DialogPosition placed = placedIn(row.view, row.before);
        CHECK(placed.x == row.after.x);
        CHECK(placed.y == row.after.y);
    }
}
