#import "QBSPScenarioPlayer.h"

#import "Commands.h"
#include "scenario/Lines.h"
#include "scenario/ScenarioError.h"

#include <cstdio>
#include <cstdlib>
#include <unistd.h>
#include <utility>

using qbsp::scenario::Lines;
using qbsp::scenario::ScenarioError;
using quarrybook::Outcome;
using quarrybook::ReadCommand;
using quarrybook::Scenario;
using quarrybook::Scene;

namespace quarrybook {

/// A scenario that is being played.
struct Scenario {
    Lines lines;
    Scene scene;
    std::string_view command = {}; ///< the last one that was run
    double resumeAt = 0;
    double giveUpAt = 0;
    std::function<bool()> condition = nullptr;
    id target = nil;
    SEL message = nullptr;
};

} // namespace quarrybook

namespace {

constexpr double pulse = 0.02;
constexpr double longestWait = 20;

int exitStatus = 0;

// AppKit exits the process itself, always with status 0.
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
- (void)stopBecause:(const char*)problem;
- (void)play:(std::string_view)line;
- (void)finish;
@end

@implementation QBSPScenarioPlayer

- (id)initWithFile:(const char*)path
       preferences:(QBSPPreferencesWindow*)preferences
            runner:(QBSPPaneRunner*)runner {
    if ((self = [super init]) == nil)
        return nil;
    const auto text = qbsp::scenario::contentsOf(path);
    if (!text) {
        std::fprintf(stderr, "%s: cannot be read\n", path);
        [self release];
        return nil;
    }
    playing = std::make_unique<Scenario>(Scenario{Lines(path, *text), Scene(preferences, runner)});
    return self;
}

- (void)dealloc {
    [timer invalidate];
    [super dealloc];
}

- (void)playAndSend:(SEL)message to:(id)target {
    Scenario& scenario = *playing;
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
    Scenario& scenario = *playing;
    // The run loop runs while a click is shown, and the next command waits until that is over. But a modal
    // window that opened during a command is what the next command is for.
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
    try {
        if ([self isReady])
            [self playNext];
    } catch (const ScenarioError& error) {
        [self stopBecause:error.what()];
    }
}

- (BOOL)isReady {
    Scenario& scenario = *playing;
    if (!scenario.condition || scenario.condition()) {
        scenario.condition = nullptr;
        return YES;
    }
    if ([NSDate timeIntervalSinceReferenceDate] > scenario.giveUpAt)
        throw ScenarioError("timed out waiting for '" + std::string(scenario.command) + "'");
    return NO;
}

- (void)playNext {
    if (const auto command = playing->lines.nextCommand())
        [self play:*command];
    else
        [self finish];
}

- (void)stopBecause:(const char*)problem {
    std::fprintf(stderr, "%s: %s\n", playing->lines.place().c_str(), problem);
    [timer invalidate];
    timer = nil;
    QBSPQuitWithStatus(2);
}

- (void)play:(std::string_view)line {
    Scenario& scenario = *playing;
    const ReadCommand command = quarrybook::readCommand(line, scenario.scene);
    scenario.command = line;
    if (command.echo == quarrybook::Echo::shown)
        printLine("> " + std::string(line));
    Outcome outcome = command.action();
    for (const std::string& text : outcome.lines)
        printLine(text);
    scenario.resumeAt = [NSDate timeIntervalSinceReferenceDate] + outcome.pause;
    scenario.giveUpAt = [NSDate timeIntervalSinceReferenceDate] + longestWait;
    scenario.condition = std::move(outcome.condition);
}

- (void)finish {
    Scenario& scenario = *playing;
    [timer invalidate];
    timer = nil;
    [scenario.target performSelector:scenario.message];
}

@end
