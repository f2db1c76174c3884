#import "appkit/view/QBSPNameFormatter.h"

#include "appkit/view/ShortenedText.h"

namespace {

const NSUInteger maximumLength = 200;

NSString* onOneLine(NSString* name) {
    NSMutableCharacterSet* breaks = [[[NSCharacterSet controlCharacterSet] mutableCopy] autorelease];
    [breaks formUnionWithCharacterSet:[NSCharacterSet newlineCharacterSet]];
    NSArray* lines = [name componentsSeparatedByCharactersInSet:breaks];
    return [lines componentsJoinedByString:@" "];
}

} // namespace

@implementation QBSPNameFormatter

- (NSString*)stringForObjectValue:(id)name {
    return [name isKindOfClass:[NSString class]] ? onOneLine(qbsp::appkit::withoutMiddle(name, maximumLength))
                                                 : nil;
}

@end
