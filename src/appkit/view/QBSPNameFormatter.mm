#import "appkit/view/QBSPNameFormatter.h"

namespace {

const NSUInteger maximumLength = 200;

NSString* shortened(NSString* name) {
    if ([name length] <= maximumLength)
        return name;
    // Never cuts a composed character in two.
    const NSUInteger end = [name rangeOfComposedCharacterSequenceAtIndex:maximumLength].location;
    return [[name substringToIndex:end] stringByAppendingString:@"\u2026"];
}

NSString* onOneLine(NSString* name) {
    NSMutableCharacterSet* breaks = [[[NSCharacterSet controlCharacterSet] mutableCopy] autorelease];
    [breaks formUnionWithCharacterSet:[NSCharacterSet newlineCharacterSet]];
    NSArray* lines = [name componentsSeparatedByCharactersInSet:breaks];
    return [lines componentsJoinedByString:@" "];
}

} // namespace

@implementation QBSPNameFormatter

- (NSString*)stringForObjectValue:(id)name {
    return [name isKindOfClass:[NSString class]] ? onOneLine(shortened(name)) : nil;
}

@end
