#include "appkit/stores/XMLData.h"

#include "appkit/stores/gnustep/PropertyList.h"

namespace qbsp::appkit {

// GNUstep's own writer puts escapes of its own in the place of characters such as emoji, and rounds reals.
NSData* xmlData(const platform::Dictionary& dictionary) {
    const std::string xml = propertyListBytes(dictionary);
    return [NSData dataWithBytes:xml.data() length:xml.size()];
}

} // namespace qbsp::appkit
