#include "FileContents.h"
#include "Home.h"
#include "Supervision.h"

#include "files/Owner.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace faults {

namespace {

/// Has a process say something while one of its calls on /proc fails, and checks that; for each of the calls.
void checkWhicheverCallFails(const std::function<std::string()>& say,
                             const std::function<void(const std::string&)>& check) {
    const std::filesystem::path file = std::filesystem::path(std::getenv("TEMP")) / "said";
    const Work work{.prepare =
                        [&] {
                            return [&] {
                                std::ofstream(file) << say();
                            };
                        },
                    .afterwards =
                        [] {
                            return true;
                        }};
    bool isOver = false;
    for (int failing = 0; !isOver; ++failing) {
        int number = failing;
        const auto judge = [&](const FileCall& call) {
            return call.file.starts_with("/proc/") && number-- == 0 ? EMFILE : isMade;
        };
        EXPECT_EQ(supervised(work, {.judge = judge,
                                    .inBetween =
                                        [&] {
                                            check(bytesOf(file));
                                        }}),
                  0);
        isOver = number >= 0;
        EXPECT_TRUE(failing > 0 || !isOver) << "no call on /proc was made";
    }
}

} // namespace

TEST(OwnerFaults, NeverHaveAProcessSayThatItIsAnother) {
    checkWhicheverCallFails(files::thisProcess, [](const std::string& said) {
        EXPECT_NE(files::lifeOf(said), files::Life::ended);
    });
}

TEST(OwnerFaults, NeverHaveALivingProcessCountAsEnded) {
    const std::string here = files::thisProcess();
    checkWhicheverCallFails([&] { return files::lifeOf(here) == files::Life::ended ? "ended" : "not ended"; },
                            [](const std::string& said) { EXPECT_EQ(said, "not ended"); });
}

} // namespace faults
