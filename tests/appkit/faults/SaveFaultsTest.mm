#include "Home.h"
#include "Long.h"
#include "Saves.h"
#include "Supervision.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <fstream>
#include <sstream>
#include <sys/wait.h>
#include <unistd.h>

namespace faults {

namespace fs = std::filesystem;

namespace {

/// Only one call in so many goes wrong in the short form, another one with each fault.
constexpr int stride = 401;

constexpr std::array faultsOfACall{ENOSPC, EIO, EINTR, EMFILE, EACCES, isKilled};

/// The standard error of this process and of its children goes to a file while this exists.
class Logged {
public:
    Logged() {
        const int file = open(path_.c_str(), O_CREAT | O_TRUNC | O_WRONLY | O_APPEND | O_CLOEXEC, 0600);
        dup2(file, STDERR_FILENO);
        close(file);
    }

    ~Logged() {
        dup2(before_, STDERR_FILENO);
        close(before_);
    }

    Logged(const Logged&) = delete;
    Logged& operator=(const Logged&) = delete;

    /// What was logged so far, without the time and the process.
    [[nodiscard]] std::vector<std::string> lines() const {
        std::ifstream file(path_);
        std::vector<std::string> lines;
        for (std::string line; std::getline(file, line);)
            lines.push_back(line.substr(std::min(line.size(), line.find("] ") + 2)));
        return lines;
    }

private:
    fs::path path_ = fs::path(std::getenv("TEMP")) / "log";
    int before_ = fcntl(STDERR_FILENO, F_DUPFD_CLOEXEC, 0);
};

/// What came of a save, with a fault in it or without.
struct Saving {
    int status = 0;                    ///< of the process that saved
    Contents inBetween;                ///< the home after the save
    std::vector<std::string> log;      ///< of the save
    std::vector<std::string> logLater; ///< of that and of what the process did afterwards
    bool anotherSaved = false;         ///< whether another process could save then
    Contents atTheEnd;                 ///< the home after that
    FileCall faulty;                   ///< the call that was not made; without a name when all were
};

/// Whether it is on the user's files, or on those that tell which processes live.
bool isCounted(const FileCall& call) {
    return call.file.starts_with(home().string() + "/") || call.file.starts_with("/proc/sys/") ||
           call.file.starts_with("/proc/self/") ||
           call.file.starts_with("/proc/" + std::to_string(call.process) + "/");
}

/// Saves, and has one of the calls that count go wrong: the one of that number, beginning with 0.
Saving saveWithFault(const Save& save, int number, Verdict fault) {
    Saving run;
    put(save.before, home());
    const Logged log;
    const auto judge = [&](const FileCall& call) {
        if (!isCounted(call) || number-- != 0)
            return isMade;
        run.faulty = call;
        return fault;
    };
    const auto look = [&] {
        run.inBetween = contentsOf(home());
        run.log = log.lines();
    };
    run.status = supervised(save.work, {.judge = judge, .inBetween = look});
    if (fault == isKilled)
        look();
    run.logLater = log.lines();
    run.anotherSaved = anotherProcessSaves();
    run.atTheEnd = contentsOf(home());
    return run;
}

Saving saveWithoutFault(const Save& save) {
    return saveWithFault(save, -1, isMade);
}

std::size_t count(const std::vector<std::string>& lines, const std::string& text) {
    return static_cast<std::size_t>(std::count_if(lines.begin(), lines.end(), [&](const std::string& line) {
        return line.find(text) != std::string::npos;
    }));
}

std::string bytesIn(const Contents& contents, const std::string& file) {
    const auto found = contents.find(file);
    return found == contents.end() ? "no file" : found->second;
}

/// The files that a save changes, as they were and as they are then.
class ChangedFiles {
public:
    ChangedFiles(const Contents& before, const Contents& after) : before_(before), after_(after) {
        for (const Contents* contents : {&before, &after})
            for (const auto& [file, bytes] : *contents)
                if (!bytes.empty() && bytesIn(before, file) != bytesIn(after, file))
                    names.push_back(file);
    }

    [[nodiscard]] bool isOld(const Contents& contents, const std::string& file) const {
        return bytesIn(contents, file) == bytesIn(before_, file);
    }

    [[nodiscard]] bool isNew(const Contents& contents, const std::string& file) const {
        return bytesIn(contents, file) == bytesIn(after_, file);
    }

    std::vector<std::string> names;

private:
    const Contents& before_;
    const Contents& after_;
};

class SaveFaults : public testing::TestWithParam<Save> {
protected:
    void TearDown() override { put({{"GNUstep/Defaults", ""}}, home()); }

    /// Has one call go wrong, and checks what comes of it. False when there is no call of that number.
    [[nodiscard]] bool tryFault(int number, Verdict fault) const;

    void check(const Saving& run, Verdict fault) const;
    void checkLog(const Saving& run) const;

    const Contents& before = GetParam().before;
    const Saving right = saveWithoutFault(GetParam());
};

std::string describe(const Save& save, const Saving& run, int number, Verdict fault) {
    std::ostringstream text;
    text << save.name << ", call " << number << ", " << run.faulty.name << " " << run.faulty.file << ": "
         << (fault == isKilled ? "killed there" : std::strerror(fault)) << "\n";
    for (const std::string& line : run.logLater)
        text << "    " << line << "\n";
    return text.str();
}

bool SaveFaults::tryFault(int number, Verdict fault) const {
    const Saving run = saveWithFault(GetParam(), number, fault);
    const bool wasReached = !run.faulty.name.empty();
    const testing::ScopedTrace trace(__FILE__, __LINE__, describe(GetParam(), run, number, fault));
    if (wasReached)
        check(run, fault);
    return wasReached;
}

void SaveFaults::check(const Saving& run, Verdict fault) const {
    const ChangedFiles files(before, right.inBetween);
    bool allAreNew = true;
    for (const auto& [file, bytes] : before)
        EXPECT_TRUE(files.isOld(run.inBetween, file) || files.isNew(run.inBetween, file))
            << file << " is neither old nor new: " << bytesIn(run.inBetween, file);
    for (const std::string& file : files.names)
        allAreNew = allAreNew && files.isNew(run.inBetween, file);
    if (fault == isKilled) {
        EXPECT_TRUE(WIFSIGNALED(run.status));
    } else {
        EXPECT_EQ(run.status, 0) << "a later save should succeed";
        EXPECT_TRUE(allAreNew || count(run.log, "ERROR: ") > 0) << "a save failed, and was not logged";
        checkLog(run);
    }
    EXPECT_TRUE(run.anotherSaved);
    if (fault != isKilled && GetParam().afterwards != Afterwards::isLost) {
        EXPECT_EQ(run.atTheEnd, right.atTheEnd);
    }
}

void SaveFaults::checkLog(const Saving& run) const {
    for (const std::string& line : run.logLater) {
        EXPECT_EQ(count(run.logLater, line), 1U) << "logged again: " << line;
    }
    if (GetParam().afterwards == Afterwards::isSavedWithTheNext) {
        EXPECT_EQ(count(run.logLater, "kept in memory"), count(run.logLater, "was saved after all"));
    }
}

} // namespace

TEST_P(SaveFaults, LoseNothingWhicheverCallFails) {
    ASSERT_EQ(right.status, 0);
    EXPECT_EQ(count(right.logLater, "ERROR: "), 0U);
    int faults = 0;
    for (const Verdict fault : faultsOfACall)
        for (int number = isLong ? 0 : faults % stride; tryFault(number, fault);
             number += isLong ? 1 : stride)
            ++faults;
    std::printf("%s: %d faults\n", GetParam().name.c_str(), faults);
}

INSTANTIATE_TEST_SUITE_P(Each, SaveFaults, testing::ValuesIn(allSaves()), [](const auto& parameter) {
    std::string name = parameter.param.name;
    std::erase_if(name, [](char each) { return std::isalnum(static_cast<unsigned char>(each)) == 0; });
    return name;
});

} // namespace faults
