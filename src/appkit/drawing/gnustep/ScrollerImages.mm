#include "appkit/drawing/ScrollerImages.h"

#import "appkit/drawing/gnustep/QBSPSmallImage.h"

#import <GNUstepGUI/GSTheme.h>

#include <array>
#include <utility>

namespace qbsp::appkit {

namespace {

constexpr std::array names{@"common_ArrowUp",    @"common_ArrowUpH",    @"common_ArrowDown",
                           @"common_ArrowDownH", @"common_ArrowLeft",   @"common_ArrowLeftH",
                           @"common_ArrowRight", @"common_ArrowRightH", @"common_Dimple",
                           @"common_DimpleHoriz"};

void nameImage(NSString* name, NSArray* libraries) {
    NSString* place =
        [@"Images" stringByAppendingPathComponent:[name stringByAppendingPathExtension:@"tiff"]];
    for (NSUInteger index = 0; index < [libraries count]; ++index) {
        NSString* file = [[libraries objectAtIndex:index] stringByAppendingPathComponent:place];
        if (![[NSFileManager defaultManager] isReadableFileAtPath:file])
            continue;
        NSImage* image = [[[QBSPSmallImage alloc] initByReferencingFile:file] autorelease];
        [image setName:name];
        return;
    }
}

} // namespace

// A scroller asks for these images by name, and GNUstep looks for each as a file of every type that it can
// read, in hundreds of places, before it finds the one that it has itself. A theme has images of its own.
void nameScrollerImages() {
    static bool haveNames = false;
    if (std::exchange(haveNames, true) || [[GSTheme theme] bundle] != nil)
        return;
    NSArray* libraries = NSSearchPathForDirectoriesInDomains(NSLibraryDirectory, NSAllDomainsMask, YES);
    for (NSString* name : names)
        nameImage(name, libraries);
}

} // namespace qbsp::appkit
