#pragma once

#include "FileContents.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <string>
#include <sys/types.h>
#include <vector>

/// Success as soon as the condition holds; failure when it does not within ten seconds. The run loop runs
/// meanwhile.
[[nodiscard]] testing::AssertionResult eventually(const std::function<bool()>& condition);

/// A test with real applications in a session of its own. None of them outlives it.
class RealSession : public testing::Test {
protected:
    RealSession();
    ~RealSession() override;

    /// Makes the bundle <name>.app of that identifier, with an executable that does nothing for a minute.
    /// Returns the executable's path.
    [[nodiscard]] std::filesystem::path makeApplication(const std::string& name,
                                                        const std::string& identifier) const;

    /// Executes the file; returns the number of the process. The test is its parent, and does not reap it.
    pid_t execute(const std::filesystem::path& file, std::vector<std::string> arguments = {});

    /// Executes a file that makeApplication() made, or a copy of it.
    pid_t executeIdle(const std::filesystem::path& file) { return execute(file, {"60"}); }

    /// Kills the process, and returns once it has ended.
    static void killAndAwait(pid_t pid);

    const std::filesystem::path folder;

private:
    std::vector<pid_t> children_;
};
