#import "appkit/plugin/ApplicationSandboxing.h"

#include "appkit/bridge/URLs.h"
#include "appkit/services/FileManager.h"
#include "appkit/services/HostProcess.h"
#include "pane/SharedSorterFolder.h"

@implementation NSApplication (Sandboxing)

- (NSURL*)sharedSorterFolder {
    qbsp::appkit::AppKitFileManager files;
    qbsp::appkit::AppKitLog log;
    return qbsp::appkit::nsURL(qbsp::sharedSorterFolder(files, log));
}

@end
