/// The plug-in as built, in a host that loads it as any library.

#include "easel/runtime/Host.h"
#include "easel/suites/Suites.h"

#include <doctest/doctest.h>

#include <filesystem>
#include <fstream>

namespace {

using easel::Host;

/// A copy of the library in a folder of its own, with a manual beside it.
class Installed {
public:
    Installed() {
        std::filesystem::create_directories(folder);
        std::filesystem::copy_file(FACETTA_LIBRARY, library(),
                                   std::filesystem::copy_options::overwrite_existing);
        std::ofstream(manual()) << "manual";
    }
    ~Installed() {
        std::error_code ignored; // a system may still hold the library
        std::filesystem::remove_all(folder, ignored);
    }
    Installed(const Installed&) = delete;
    Installed& operator=(const Installed&) = delete;

    [[nodiscard]] std::filesystem::path library() const {
        return folder / std::filesystem::path(FACETTA_LIBRARY).filename();
    }
    [[nodiscard]] std::filesystem::path manual() const {
        return folder / "Facetta User Manual.pdf";
    }

    const std::filesystem::path folder =
        std::filesystem::temp_directory_path() / "facetta-library-tests";
};

/// A host that has started the library.
struct Session {
    Session() : host(easel::sessionWithSuites()) {
        host.user.browserAvailable = false;
        host.addPlugins(installed.library());
        host.start();
    }
    void quit() {
        host.quit();
        for (const std::string& complaint : host.complaints())
            FAIL_CHECK(complaint);
    }

    Installed installed;
    Host host;
};

} // namespace

TEST_CASE("the manual is found beside the library") {
    Session session;
    const AIMenuItemHandle help = session.host.menus.itemNamed("Facetta Help");
    REQUIRE(help != nullptr);
    session.host.chooseMenuItem(help);
    REQUIRE(session.host.user.launched.size() == 1);
    CHECK(std::filesystem::equivalent(session.host.user.launched.front(),
                                      session.installed.manual()));
    session.quit();
}
