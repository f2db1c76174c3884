#include "RealSession.h"

#include "processes/Process.h"
#include "processes/Session.h"

#import <Foundation/Foundation.h>

#include <csignal>
#include <cstdlib>
#include <fstream>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

/// The applications that the test started, and the children that still have to execute one.
std::vector<processes::Process> othersOfSession() {
    auto others = processes::processesOfUser(
        [](const fs::path& executable) { return executable.parent_path().extension() == ".app"; });
    std::erase_if(others, [](const processes::Process& process) {
        return process.pid == getpid() || !sharesSession(process);
    });
    return others;
}

bool killOthers() {
    const auto others = othersOfSession();
    for (const auto& process : others)
        kill(process.pid, SIGKILL);
    return others.empty();
}

fs::path inHome(const char* path) {
    return fs::path(std::getenv("HOME")) / path;
}

void removeSettings() {
    for (const auto& domain : fs::directory_iterator(inHome("GNUstep/Defaults")))
        fs::remove_all(domain);
    for (const char* variable : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME"})
        fs::remove_all(std::getenv(variable));
}

} // namespace

testing::AssertionResult eventually(const std::function<bool()>& condition) {
    constexpr NSTimeInterval longest = 10;
    NSDate* limit = [NSDate dateWithTimeIntervalSinceNow:longest];
    while (!condition()) {
        if ([limit timeIntervalSinceNow] < 0)
            return testing::AssertionFailure() << "did not come true within " << longest << " s";
        NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
        NSDate* shortly = [NSDate dateWithTimeIntervalSinceNow:0.02];
        // A run loop without any source returns at once.
        if (![[NSRunLoop currentRunLoop] runMode:NSDefaultRunLoopMode beforeDate:shortly])
            [NSThread sleepUntilDate:shortly];
        [pool release];
    }
    return testing::AssertionSuccess();
}

RealSession::RealSession() : folder(inHome("test")) {
    fs::create_directories(folder);
}

RealSession::~RealSession() {
    EXPECT_TRUE(eventually(killOthers)) << "a process that the test started has not ended";
    for (const pid_t child : children_) {
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
    }
    removeSettings();
    fs::remove_all(folder);
}

fs::path RealSession::makeApplication(const std::string& name, const std::string& identifier) const {
    const fs::path bundle = folder / (name + ".app");
    fs::create_directories(bundle / "Resources");
    fs::copy_file("/bin/sleep", bundle / name);
    std::ofstream(bundle / "Resources" / "Info-gnustep.plist")
        << "{ CFBundleIdentifier = \"" << identifier << "\"; NSExecutable = \"" << name << "\"; }";
    return bundle / name;
}

pid_t RealSession::execute(const fs::path& file, std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), file);
    std::vector<char*> vector;
    for (std::string& argument : arguments)
        vector.push_back(argument.data());
    vector.push_back(nullptr);
    pid_t pid = 0;
    EXPECT_EQ(posix_spawn(&pid, file.c_str(), nullptr, nullptr, vector.data(), environ), 0)
        << file << " could not be executed";
    children_.push_back(pid);
    return pid;
}

void RealSession::killAndAwait(pid_t pid) {
    kill(pid, SIGKILL);
    EXPECT_TRUE(eventually([pid] { return !processes::processOfNumber(pid); }));
}
