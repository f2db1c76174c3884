#include "appkit/drawing/ScrollerImages.h"

#import <AppKit/AppKit.h>
#import <GNUstepGUI/GSTheme.h>

#include <array>

namespace qbsp::appkit {

namespace {

constexpr std::array names{@"common_ArrowUp",    @"common_ArrowUpH",    @"common_ArrowDown",
                           @"common_ArrowDownH", @"common_ArrowLeft",   @"common_ArrowLeftH",
                           @"common_ArrowRight", @"common_ArrowRightH", @"common_Dimple",
                           @"common_DimpleHoriz"};

void nameImage(NSString* name) {
    NSString* file = [NSBundle pathForLibraryResource:name ofType:@"tiff" inDirectory:@"Images"];
    NSImage* image = file == nil ? nil : [[[NSImage alloc] initByReferencingFile:file] autorelease];
    [image setName:name];
}

} // namespace

// A scroller asks for these images by name, and GNUstep looks for each as a file of every type that it can
// read, in hundreds of places, before it finds the one that it has itself. A theme has images of its own.
void nameScrollerImages() {
    if ([[GSTheme theme] bundle] != nil)
        return;
    for (NSString* name : names)
        nameImage(name);
}

} // namespace qbsp::appkit
