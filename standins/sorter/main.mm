#import "QBSPQuitRequest.h"
#import "QBSPSorter.h"

#include <csignal>

int main() {
    [QBSPQuitRequest hold];
    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
    // The process that reads its output may end at any time.
    std::signal(SIGPIPE, SIG_IGN);
    // Its only window is the tab.
    [[NSUserDefaults standardUserDefaults]
        registerDefaults:[NSDictionary dictionaryWithObject:@"YES" forKey:@"GSSuppressAppIcon"]];
    QBSPSorter* sorter = [[QBSPSorter alloc] init];
    [[NSApplication sharedApplication] setDelegate:sorter];
    [QBSPQuitRequest accept];
    [NSApp run];
    [sorter release];
    [pool release];
    return 0;
}
