#include "tests/FallibleCalls.h"
#include "tests/tool/Annotated.h"
#include "tests/tool/Drawing.h"

using namespace facetta;
using namespace facetta::tests;

namespace {

/// The answer to a draw message, and what is drawn by it.
struct Drawn {
    SPErr answer = kNoErr;
    std::string text;
};

Drawn draw(Session& session) {
    AIAnnotatorDrawer drawer;
    const SPErr answer = session.send("AI Annotation", "AI Draw", drawMessage(session, &drawer));
    return {answer, easel::dump(drawer.list)};
}

} // namespace

TEST_CASE("whichever host call fails, drawing answers its code, and the next picture is whole") {
    Drawing session{/*selected*/ true};
    session.host.track({.at = session.onRay(0.5, 200)});
    REQUIRE(thePlugin->tool.sectorHandleHighlighted);
    const auto drawAfresh = [&] {
        showHint(thePlugin->tool.hint, HintId::MoveOrigin, platform::ticks());
        clearPreview(thePlugin->tool); // so that the art is read again
        return draw(session);
    };
    REQUIRE(drawAfresh().answer == kNoErr); // the first hint makes its timer
    Drawn whole;
    const std::vector<std::string> names = fallibleCalls([&] { whole = drawAfresh(); });
    REQUIRE(whole.answer == kNoErr);
    REQUIRE(names.size() > 50);

    std::size_t answered = 0;
    for (std::size_t call = 1; call <= names.size(); ++call) {
        if (givesBack(names[call - 1])) continue;
        INFO(names[call - 1], ", host call ", call);
        easel::session().calls.arm({.mode = easel::FaultPlan::Mode::Once,
                                    .call = call,
                                    .function = {},
                                    .code = kOutOfMemoryErr});
        const Drawn broken = drawAfresh();
        CHECK(easel::session().calls.fired());
        easel::session().calls.disarm();
        CHECK((broken.answer == kNoErr || broken.answer == kOutOfMemoryErr));
        answered += broken.answer == kOutOfMemoryErr ? 1 : 0;
        CHECK(drawAfresh().text == whole.text);
    }
    CHECK(answered > names.size() / 2); // few answers have a default
}
