#include "easel/document/Dump.h"
#include "easel/svg/SvgFile.h"

#include <doctest/doctest.h>

using namespace easel;
using namespace easel::svg;

TEST_CASE("the example drawings are the same after saving and opening, and saving again") {
    for (const char* name : {"rosette", "layered", "crossing", "dense"}) {
        INFO(name);
        const OpenedDrawing first = readSvg(std::string{"examples/"} + name + ".svg");
        const std::string saved = svgText(*first.document);
        const OpenedDrawing second = readSvgText(saved, "saved.svg");
        CHECK(dump(*first.document) == dump(*second.document));
        CHECK(svgText(*second.document) == saved);
    }
}
