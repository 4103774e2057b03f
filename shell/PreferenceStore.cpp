#include "shell/PreferenceStore.h"

#include "host/Codes.h"
#include "host/Suites.h"
#include "host/suites/AIPreferenceSuite.h"
#include "symmetry/geometry/Geometry.h"
#include "symmetry/geometry/PageAxes.h"

#include <algorithm>
#include <variant>

namespace facetta {
namespace {

constexpr char kPrefix[] = "Facetta";
constexpr const char* kHostPrefix = nullptr; // the application's own preferences

using Field = std::variant<double Preferences::*, ai::int32 Preferences::*, bool Preferences::*>;

struct Row {
    const char* key;
    Field field;
    void (*clamp)(Preferences&) = [](Preferences&) {};
};

void clampAngle(Preferences& own) {
    // 2 pi, and so everything beyond it, is the direction 0; what is no number is 0 as well.
    if (!(own.angle >= 0.0 && own.angle < kTwoPi)) own.angle = 0.0;
}

void clampCount(Preferences& own) { own.count = std::clamp(own.count, kFewestAxes, kMostAxes); }

void clampOpacity(Preferences& own) {
    // The limit is that of percentages, though the value is a fraction.
    constexpr double kMostOpacity = 100.0;
    own.opacity = own.opacity >= 0.0 ? std::min(own.opacity, kMostOpacity) : 0.0;
}

constexpr Row kRows[] = {
    {"FTAngle", &Preferences::angle, clampAngle},
    {"FTCount", &Preferences::count, clampCount},
    {"FTDlgPosX", &Preferences::dialogX},
    {"FTDlgPosY", &Preferences::dialogY},
    {"FTUseAnnoDlg", &Preferences::useAnnotationDialog},
    {"FTInitDragPO", &Preferences::initialDragMovesOrigin},
    {"FTRemovePoints", &Preferences::removePoints},
    {"FTApplySel", &Preferences::applyToSelection},
    {"FTAutoMirror", &Preferences::autoMirror},
    {"FTUseOverlay", &Preferences::useOverlay},
    {"FTOpacity", &Preferences::opacity, clampOpacity},
    {"FTSnapPerp", &Preferences::snapPerpendicular},
    {"FTPanelExpansion", &Preferences::panelExpansion},
};

// A getter that finds nothing leaves the value alone, whatever code it answers: so no code is
// looked at.
void read(const char* prefix, const char* key, double& value) {
    ai::suites.preference->GetRealPreference(prefix, key, &value);
}
void read(const char* prefix, const char* key, ai::int32& value) {
    ai::suites.preference->GetIntegerPreference(prefix, key, &value);
}
void read(const char* prefix, const char* key, bool& value) {
    AIBoolean stored = value ? 1 : 0;
    ai::suites.preference->GetBooleanPreference(prefix, key, &stored);
    value = stored != 0;
}

AIErr write(const char* key, double value) {
    return ai::suites.preference->PutRealPreference(kPrefix, key, value);
}
AIErr write(const char* key, ai::int32 value) {
    return ai::suites.preference->PutIntegerPreference(kPrefix, key, value);
}
AIErr write(const char* key, bool value) {
    return ai::suites.preference->PutBooleanPreference(kPrefix, key, value ? 1 : 0);
}

} // namespace

void loadPreferences(HostPreferences& host, Preferences& own) {
    read(kHostPrefix, "isRulerIn4thQuad", host.isRulerIn4thQuad);
    host.constrainAngle = readConstrainAngle();
    for (const Row& row : kRows) {
        std::visit([&](auto field) { read(kPrefix, row.key, own.*field); }, row.field);
        row.clamp(own);
    }
}

double readConstrainAngle() {
    double degrees = 0.0;
    read(kHostPrefix, kConstrainAnglePreference, degrees);
    return degrees;
}

AIErr savePreferences(const Preferences& own) {
    AIErr first = kNoErr;
    for (const Row& row : kRows) {
        const AIErr err =
            std::visit([&](auto field) { return write(row.key, own.*field); }, row.field);
        if (first == kNoErr) first = err;
    }
    return first;
}

} // namespace facetta
