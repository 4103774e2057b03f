/// The art side of the host as a plug-in sees it: its suites, a document, and a record around what
/// a test does.
#pragma once

#include "easel/core/HostObjects.h"
#include "easel/core/Ledger.h"
#include "easel/core/SuiteServer.h"
#include "easel/document/ArtTree.h"
#include "easel/document/Attributes.h"
#include "easel/document/Dump.h"
#include "easel/document/Layers.h"
#include "easel/document/Session.h"
#include "easel/suites/art/ArtSuites.h"
#include "host/suites/AIArtSetSuite.h"
#include "host/suites/AIArtSuite.h"
#include "host/suites/AIDictionarySuite.h"
#include "host/suites/AIEntrySuite.h"
#include "host/suites/AIGroupSuite.h"
#include "host/suites/AIHardSoftSuite.h"
#include "host/suites/AIHitTestSuite.h"
#include "host/suites/AILayerSuite.h"
#include "host/suites/AIPathSuite.h"
#include "host/suites/AIPluginGroupSuite.h"
#include "host/suites/AITransformArtSuite.h"
#include "host/suites/AIUndoSuite.h"

#include <doctest/doctest.h>

#include <initializer_list>
#include <string>
#include <vector>

namespace easel::tests {

SuiteServer& server();

template <typename Suite> const Suite& suite(const char* name, ai::int32 version) {
    return server().table<Suite>(name, version).functions();
}

inline const AIArtSuite& art() { return suite<AIArtSuite>(kAIArtSuite, kAIArtSuiteVersion); }
inline const AIArtSetSuite& artSet() {
    return suite<AIArtSetSuite>(kAIArtSetSuite, kAIArtSetSuiteVersion);
}
inline const AIPathSuite& path() { return suite<AIPathSuite>(kAIPathSuite, kAIPathSuiteVersion); }
inline const AILayerSuite& layer() {
    return suite<AILayerSuite>(kAILayerSuite, kAILayerSuiteVersion);
}
inline const AIDictionarySuite& dictionary() {
    return suite<AIDictionarySuite>(kAIDictionarySuite, kAIDictionarySuiteVersion);
}
inline const AIEntrySuite& entry() {
    return suite<AIEntrySuite>(kAIEntrySuite, kAIEntrySuiteVersion);
}
inline const AIUndoSuite& undo() { return suite<AIUndoSuite>(kAIUndoSuite, kAIUndoSuiteVersion); }
inline const AIHitTestSuite& hit() {
    return suite<AIHitTestSuite>(kAIHitTestSuite, kAIHitTestSuiteVersion);
}
inline const AITransformArtSuite& transform() {
    return suite<AITransformArtSuite>(kAITransformArtSuite, kAITransformArtSuiteVersion);
}
inline const AIHardSoftSuite& hardSoft() {
    return suite<AIHardSoftSuite>(kAIHardSoftSuite, kAIHardSoftSuiteVersion);
}

/// One message to the plug-in: what happens while it lives is one step for undo.
class Record {
public:
    explicit Record(Document& document) : undo_(document.undo()) { undo_.open(); }
    ~Record() { undo_.close(); }
    Record(const Record&) = delete;
    Record& operator=(const Record&) = delete;

private:
    UndoLog& undo_;
};

/// A current document of 200 by 100 points with one layer. At the end nothing may be on loan, and
/// the switches are as they were.
class Drawing {
public:
    Drawing() { session().current = &document; }
    ~Drawing() {
        session().messageLoans.clear();
        for (const OpenLoan& loan : session().ledger.outstanding())
            FAIL_CHECK(describe(loan));
        session().ledger.clear();
        session().switches = {};
        session().allowAllChanges = false;
    }
    Drawing(const Drawing&) = delete;
    Drawing& operator=(const Drawing&) = delete;

    [[nodiscard]] Art& layerGroup() const { return *document.root().firstChild(); }
    /// Made as a plug-in makes it.
    AIArtHandle make(ai::int16 type, ai::int16 order, AIArtHandle reference) const {
        AIArtHandle made = nullptr;
        REQUIRE(art().NewArt(type, order, reference, &made) == kNoErr);
        return made;
    }
    AIArtHandle make(ai::int16 type) const {
        return make(type, kPlaceInsideOnBottom, layerGroup().handle());
    }
    /// A path through `points` with straight pieces.
    AIArtHandle makePath(std::initializer_list<AIRealPoint> points) const {
        const AIArtHandle made = make(kPathArt);
        std::vector<AIPathSegment> segments;
        for (const AIRealPoint point : points)
            segments.push_back({point, point, point, 1});
        const auto count = static_cast<ai::int16>(segments.size());
        REQUIRE(path().SetPathSegments(made, 0, count, segments.data()) == kNoErr);
        return made;
    }
    /// Puts `handle` into `group`, in front.
    void moveInto(AIArtHandle group, AIArtHandle handle) const {
        moveArt(session().artOf(handle), onTopOf(session().artOf(group)));
    }
    void name(AIArtHandle handle, std::string text) const {
        session().artOf(handle).write(Edit::Quiet).details.write().name = std::move(text);
    }

    Document document{session(), AISize{200, 100}};
};

/// A string of the host in the plug-in's hands.
struct HostText {
    HostText() = default;
    explicit HostText(std::string_view text) { easel::writeUtf8(session().ledger, string, text); }
    ~HostText() { destroyString(session().ledger, string); }
    HostText(const HostText&) = delete;
    HostText& operator=(const HostText&) = delete;
    ai::UnicodeString string;
};

inline bool isAttribute(AIArtHandle handle, ai::int32 attribute) {
    ai::int32 attributes = 0;
    REQUIRE(art().GetArtUserAttr(handle, attribute, &attributes) == kNoErr);
    return attributes == attribute;
}

} // namespace easel::tests
