#include "ui/DisplayUnits.h"

#include "host/Codes.h"
#include "host/Suites.h"
#include "host/suites/AIDocumentListSuite.h"
#include "host/suites/AIDocumentSuite.h"
#include "host/suites/AIPreferenceSuite.h"

#include <algorithm>
#include <span>

namespace facetta {
namespace {

struct Row {
    ai::int32 hostCode;
    DisplayUnit unit;
};

constexpr Row kRulerUnits[] = {
    {1, DisplayUnit::Inch},       {2, DisplayUnit::Centimetre}, {4, DisplayUnit::Pica},
    {5, DisplayUnit::Millimetre}, {6, DisplayUnit::Pixel},      {7, DisplayUnit::Q},
};

constexpr Row kRulerTypes[] = {
    {0, DisplayUnit::Inch},       {1, DisplayUnit::Millimetre}, {3, DisplayUnit::Pica},
    {4, DisplayUnit::Centimetre}, {5, DisplayUnit::Q},          {6, DisplayUnit::Pixel},
};

DisplayUnit lookUp(std::span<const Row> rows, ai::int32 hostCode) {
    const auto found = std::ranges::find(rows, hostCode, &Row::hostCode);
    return found != rows.end() ? found->unit : DisplayUnit::Point;
}

} // namespace

DisplayUnit displayUnit() {
    ai::int32 documents = 0;
    ai::int16 rulerUnits = 0;
    if (ai::suites.documentList->Count(&documents) == kNoErr && documents > 0 &&
        ai::suites.document->GetDocumentRulerUnits(&rulerUnits) == kNoErr)
        return lookUp(kRulerUnits, rulerUnits);
    constexpr ai::int32 kPoints = 2;
    ai::int32 rulerType = kPoints;
    ai::suites.preference->GetIntegerPreference(nullptr, "rulerType", &rulerType);
    return lookUp(kRulerTypes, rulerType);
}

} // namespace facetta
