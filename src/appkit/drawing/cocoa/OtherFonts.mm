#import "appkit/drawing/OtherFonts.h"

namespace qbsp::appkit {

NSFont* otherFontWithCharacters(NSString*, CGFloat) {
    return nil;
}

} // namespace qbsp::appkit
