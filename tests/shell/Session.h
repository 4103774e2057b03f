#pragma once

/// Facetta started in a host of this process.

#include "easel/core/HostCalls.h"
#include "easel/core/SuiteServer.h"
#include "easel/runtime/Host.h"
#include "easel/suites/Suites.h"
#include "shell/Entry.h"
#include "shell/FacettaPlugin.h"
#include "tests/shell/TestLicence.h"

#include <doctest/doctest.h>

#include <string>
#include <vector>

namespace facetta::tests {

/// What the entry of this program's plug-in is licensed to: the licence of the session.
inline const Licensing*& currentLicence() {
    static const Licensing* current = nullptr;
    return current;
}

inline SPErr entry(const char* caller, const char* selector, void* message) {
    return handleMessage(*currentLicence(), caller, selector, message);
}

/// A host with Facetta in it, not started yet. What is still lent at the end fails the test.
class Session {
public:
    explicit Session(TestLicence terms = {}, easel::HostSettings settings = {})
        : licence(std::move(terms)), host(easel::sessionWithSuites(), settings) {
        currentLicence() = &licence;
        host.user.browserAvailable = false; // tests open no web pages
        plugin = host.addPlugin("Facetta", entry);
    }
    ~Session() {
        easel::session().calls.disarm();
        easel::sessionWithSuites().suites.refuseAcquisition(0);
        host.quit();
        for (const std::string& complaint : host.complaints()) {
            const bool expected =
                startUpMayFail && complaint.find("start-up failed") != std::string::npos;
            if (!expected) FAIL_CHECK(complaint);
        }
        CHECK(thePlugin == nullptr);
    }

    /// Opens an empty document of 1000 by 800 points.
    easel::Document& openDocument() {
        return host.open(std::make_unique<easel::Document>(easel::session(), AISize{1000, 800}));
    }
    [[nodiscard]] easel::Plugin& record() const { return host.plugins.at(plugin); }

    template <typename Message = SPInterfaceMessage>
    SPErr send(const char* caller, const char* selector, Message message = {}) {
        return host.send(plugin, caller, selector, message);
    }

    TestLicence licence;
    easel::Host host;
    SPPluginRef plugin;
    bool startUpMayFail = false;
};

} // namespace facetta::tests
