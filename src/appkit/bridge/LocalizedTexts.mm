#include "appkit/bridge/LocalizedTexts.h"

/// A class by which this bundle is found.
@interface QBSPLocalizedTexts : NSObject
@end

@implementation QBSPLocalizedTexts
@end

namespace qbsp::appkit {

NSString* localized(NSString* text) {
    NSBundle* bundle = [NSBundle bundleForClass:[QBSPLocalizedTexts class]];
    return [bundle localizedStringForKey:text value:@"" table:nil];
}

} // namespace qbsp::appkit
