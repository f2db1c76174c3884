#import "QBSPScenarioPlayer.h"

#import "Commands.h"

#include <cstdio>
#include <cstdlib>
#include <unistd.h>
#include <utility>

using quarrybook::Argument;
using quarrybook::Commands;
using quarrybook::Outcome;
using quarrybook::ScenarioError;
using quarrybook::ScenarioLine;

namespace {

struct Scenario {
    std::string file;
    std::vector<ScenarioLine> lines;
    Commands commands;
    std::size_t next = 0;
    double resumeAt = 0;
    double giveUpAt = 0;
    std::function<bool()> condition = nullptr;
    id target = nil;
    SEL message = nullptr;
};

Scenario& scenarioAt(void* playing) {
    return *static_cast<Scenario*>(playing);
}

constexpr double pulse = 0.02;
constexpr double longestWait = 20;

int exitStatus = 0;

// AppKit ends the process itself, always with success.
void exitWithStatus() {
    std::fflush(nullptr);
    _exit(exitStatus);
}

void printLine(const std::string& line) {
    std::fwrite(line.data(), 1, line.size(), stdout);
    std::fputc('\n', stdout);
    std::fflush(stdout);
}

} // namespace

void QBSPQuitWithStatus(int status) {
    exitStatus = status;
    if (status != 0)
        std::atexit(exitWithStatus);
    [NSApp terminate:nil];
}

@interface QBSPScenarioPlayer ()
- (void)pulse:(NSTimer*)aTimer;
- (void)playNextIfReady;
- (BOOL)isReady;
- (void)playNext;
- (void)stopAt:(int)line because:(const char*)problem;
- (void)play:(const std::string&)line;
- (void)finish;
@end

@implementation QBSPScenarioPlayer

- (id)initWithFile:(const char*)path
       preferences:(QBSPPreferencesWindow*)preferences
            runner:(QBSPPaneRunner*)runner {
    if ((self = [super init]) == nil)
        return nil;
    try {
        playing = new Scenario{path, quarrybook::readScenario(path), Commands(preferences, runner)};
    } catch (const ScenarioError& error) {
        std::fprintf(stderr, "%s: %s\n", path, error.what());
        [self release];
        return nil;
    }
    return self;
}

- (void)dealloc {
    [timer invalidate];
    delete static_cast<Scenario*>(playing);
    [super dealloc];
}

- (void)playAndSend:(SEL)message to:(id)target {
    Scenario& scenario = scenarioAt(playing);
    scenario.target = target;
    scenario.message = message;
    timer = [NSTimer timerWithTimeInterval:pulse
                                    target:self
                                  selector:@selector(pulse:)
                                  userInfo:nil
                                   repeats:YES];
    [[NSRunLoop currentRunLoop] addTimer:timer forMode:NSDefaultRunLoopMode];
    [[NSRunLoop currentRunLoop] addTimer:timer forMode:NSModalPanelRunLoopMode];
}

- (void)pulse:(NSTimer*)aTimer {
    Scenario& scenario = scenarioAt(playing);
    // A click lets the run loop go on while it shows, and the next command waits for its end. But a modal
    // window that opened within a command is what the next command is for.
    NSWindow* modalWindow = [NSApp modalWindow];
    const bool waits = busy && (modalWindow == nil || modalWindow == modalWindowBefore);
    if (waits || [NSDate timeIntervalSinceReferenceDate] < scenario.resumeAt)
        return;
    const BOOL wasBusy = busy;
    NSWindow* const windowBefore = modalWindowBefore;
    busy = YES;
    modalWindowBefore = modalWindow;
    [self playNextIfReady];
    modalWindowBefore = windowBefore;
    busy = wasBusy;
}

- (void)playNextIfReady {
    Scenario& scenario = scenarioAt(playing);
    try {
        if ([self isReady])
            [self playNext];
    } catch (const ScenarioError& error) {
        [self stopAt:scenario.lines[scenario.next - 1].number because:error.what()];
    }
}

- (BOOL)isReady {
    Scenario& scenario = scenarioAt(playing);
    if (!scenario.condition || scenario.condition()) {
        scenario.condition = nullptr;
        return YES;
    }
    if ([NSDate timeIntervalSinceReferenceDate] > scenario.giveUpAt)
        throw ScenarioError("that did not come about");
    return NO;
}

- (void)playNext {
    Scenario& scenario = scenarioAt(playing);
    if (scenario.next == scenario.lines.size())
        [self finish];
    else
        [self play:scenario.lines[scenario.next++].text];
}

- (void)stopAt:(int)line because:(const char*)problem {
    Scenario& scenario = scenarioAt(playing);
    std::fprintf(stderr, "%s:%d: %s\n", scenario.file.c_str(), line, problem);
    [timer invalidate];
    timer = nil;
    QBSPQuitWithStatus(2);
}

- (void)play:(const std::string&)line {
    Scenario& scenario = scenarioAt(playing);
    const std::vector<Argument> words = quarrybook::split(line);
    scenario.commands.check(words);
    if (!Commands::speaksForItself(words))
        printLine("> " + line);
    Outcome outcome = scenario.commands.perform(words);
    for (const std::string& answer : outcome.answer)
        printLine(answer);
    scenario.resumeAt = [NSDate timeIntervalSinceReferenceDate] + outcome.pause;
    scenario.giveUpAt = [NSDate timeIntervalSinceReferenceDate] + longestWait;
    scenario.condition = std::move(outcome.condition);
}

- (void)finish {
    Scenario& scenario = scenarioAt(playing);
    [timer invalidate];
    timer = nil;
    [scenario.target performSelector:scenario.message];
}

@end
