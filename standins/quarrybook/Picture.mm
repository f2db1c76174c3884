#import "Picture.h"

namespace quarrybook {

bool writePicture(NSWindow* window, const std::string& path) {
    NSView* view = [window contentView];
    [window display];
    [view lockFocus];
    NSBitmapImageRep* picture =
        [[[NSBitmapImageRep alloc] initWithFocusedViewRect:[view bounds]] autorelease];
    [view unlockFocus];
    NSData* png = [picture representationUsingType:NSPNGFileType properties:[NSDictionary dictionary]];
    return [png writeToFile:[NSString stringWithUTF8String:path.c_str()] atomically:YES];
}

} // namespace quarrybook
