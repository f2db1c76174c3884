#import "Commands.h"
#include "Options.h"
#import "QBSPHostApplication.h"
#import "QBSPHostDelegate.h"
#import "QBSPQuitRequest.h"
#include "files/DefaultsLock.h"

#include <cstdio>

using quarrybook::Edition;
using quarrybook::Mistake;
using quarrybook::Options;

namespace {

// AppKit takes each argument that it does not know for a file to open, so it must not see our own options.
void hideOptionsFromAppKit(char* program, const Options& options, char** environment) {
    std::vector<char*> words{program};
    for (const std::string& word : options.forAppKit)
        words.push_back(const_cast<char*>(word.c_str()));
    [NSProcessInfo initializeWithArguments:words.data()
                                     count:static_cast<int>(words.size())
                               environment:environment];
}

// GNUstep waits for a lock that a killed process left behind. Who takes it here removes one that is stale.
void removeStaleLock() {
    files::Patience none{files::Patience::Duration(0)};
    const files::DefaultsLock lock([GSDefaultsRootForUser(NSUserName()) fileSystemRepresentation], none);
}

// An application waits for the daemon before it shows anything.
void sayWhenNoticesHaveNoDaemon() {
    if ([NSTask launchPathForTool:@"gdnc"] == nil)
        std::fputs(
            "Quarrybook: GNUstep's daemon of notifications, gdnc, is not installed: without one that runs "
            "already, no application can start\n",
            stderr);
}

void runApplication(const Options& options) {
    [QBSPQuitRequest hold];
    auto* application = static_cast<QBSPHostApplication*>([QBSPHostApplication sharedApplication]);
    [application setSandboxed:options.sandboxed ? YES : NO];
    [application setPro:options.edition == Edition::full ? YES : NO];
    QBSPHostDelegate* delegate = [[QBSPHostDelegate alloc] initWithCommandLine:&options];
    [application setDelegate:(id)delegate];
    [QBSPQuitRequest accept];
    [application run];
    [delegate release];
}

} // namespace

int main(int count, char** words, char** environment) {
    const auto parsed = quarrybook::parseOptions({words + 1, words + count});
    if (const auto* mistake = std::get_if<Mistake>(&parsed)) {
        std::fprintf(stderr, "Quarrybook: %s\n", mistake->text.c_str());
        return 2;
    }
    const auto& options = std::get<Options>(parsed);
    if (options.help) {
        const std::string help = quarrybook::usage() + "\nHost commands:\n" + quarrybook::commandList();
        std::fputs(help.c_str(), stdout);
        return 0;
    }
    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
    hideOptionsFromAppKit(words[0], options, environment);
    removeStaleLock();
    sayWhenNoticesHaveNoDaemon();
    [NSUserDefaults standardUserDefaults]; // must exist before any other instance
    runApplication(options);
    [pool release];
    return 0;
}
