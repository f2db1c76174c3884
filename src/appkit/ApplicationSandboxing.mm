#import "appkit/ApplicationSandboxing.h"

#include "appkit/FileManager.h"
#include "appkit/Log.h"
#include "appkit/URLs.h"
#include "pane/SharedSorterFolder.h"

@implementation NSApplication (Sandboxing)

- (NSURL*)sharedSorterFolder {
    qbsp::appkit::AppKitFileManager files;
    qbsp::appkit::AppKitLog log;
    return qbsp::appkit::nsURL(qbsp::sharedSorterFolder(files, log));
}

@end
