#include "appkit/stores/gnustep/SettingAside.h"

#include "appkit/bridge/Strings.h"
#include "appkit/stores/PropertyLists.h"

#import <Foundation/Foundation.h>

namespace qbsp::appkit {

namespace {

bool hasBytes(NSString* path) {
    return [[[NSFileManager defaultManager] fileAttributesAtPath:path traverseLink:YES] fileSize] > 0;
}

NSString* unusedNameFor(NSString* path) {
    NSString* name = [path stringByAppendingString:@".unreadable"];
    for (int number = 2; [[NSFileManager defaultManager] fileExistsAtPath:name]; ++number)
        name = [NSString stringWithFormat:@"%@.unreadable-%d", path, number];
    return name;
}

bool setAside(NSString* path) {
    NSString* name = unusedNameFor(path);
    const bool moved = [[NSFileManager defaultManager] movePath:path toPath:name handler:nil];
    if (moved)
        NSLog(@"ERROR: %@ is not a property list; it was kept as %@", path, [name lastPathComponent]);
    return moved;
}

} // namespace

bool setAsideUnlessDictionary(const std::string& file) {
    NSString* path = nsString(file);
    if (!hasBytes(path) || AppKitPropertyLists().dictionaryWithContentsOfFile(file))
        return true;
    return [[NSFileManager defaultManager] isReadableFileAtPath:path] && setAside(path);
}

} // namespace qbsp::appkit
