#include "toolkit/ImplCommon/SystemCursors.h"

#include <doctest/doctest.h>

#include <windows.h>

TEST_CASE("a cursor made of a picture has its hot spot, and is made once") {
    NRDM::SystemCursors cursors;
    for (const int id : {16021, 16022, 16023, 16024}) {
        INFO(id);
        const auto cursor = static_cast<HCURSOR>(cursors.find(nullptr, id));
        REQUIRE(cursor != nullptr);
        CHECK(cursors.find(nullptr, id) == cursor);
        ICONINFO info{};
        REQUIRE(GetIconInfo(cursor, &info) != 0);
        CHECK(info.fIcon == FALSE);
        CHECK(info.xHotspot == 15);
        CHECK(info.yHotspot == 15);
        BITMAP bitmap{};
        REQUIRE(info.hbmColor != nullptr);
        GetObjectW(info.hbmColor, sizeof bitmap, &bitmap);
        CHECK(bitmap.bmWidth == 32);
        CHECK(bitmap.bmHeight == 32);
        DeleteObject(info.hbmColor);
        DeleteObject(info.hbmMask);
    }
    CHECK(cursors.find(nullptr, 16025) == nullptr);
    CHECK_FALSE(cursors.show(nullptr, 16025));
    REQUIRE(cursors.show(nullptr, 16022));
    CHECK(GetCursor() == cursors.find(nullptr, 16022));
}
