#include "appkit/stores/gnustep/DefaultsFolder.h"

namespace qbsp::appkit {

namespace {

bool isWritableFolder(NSString* path) {
    NSFileManager* manager = [NSFileManager defaultManager];
    BOOL isFolder = NO;
    return [manager fileExistsAtPath:path isDirectory:&isFolder] && isFolder &&
           [manager isWritableFileAtPath:path];
}

} // namespace

NSString* defaultsFolder() {
    return GSDefaultsRootForUser(NSUserName());
}

NSString* lockFolder() {
    NSString* folder = [defaultsFolder() stringByAppendingPathComponent:@".lck"];
    [[NSFileManager defaultManager] createDirectoryAtPath:folder
                              withIntermediateDirectories:YES
                                               attributes:nil
                                                    error:nullptr];
    return isWritableFolder(defaultsFolder()) && isWritableFolder(folder) ? folder : nil;
}

} // namespace qbsp::appkit
