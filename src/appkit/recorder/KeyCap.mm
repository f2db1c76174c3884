#include "appkit/recorder/KeyCap.h"

namespace qbsp::recorder {

std::string keyCap(NSString* letter) {
    if (letter == nil)
        return {};
    NSString* capital = [letter uppercaseString];
    return [[capital length] == [letter length] ? capital : letter UTF8String];
}

} // namespace qbsp::recorder
