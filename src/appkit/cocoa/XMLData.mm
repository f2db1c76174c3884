#include "appkit/XMLData.h"

#include "appkit/PropertyListConversion.h"

namespace qbsp::appkit {

NSData* xmlData(const platform::Dictionary& dictionary) {
    return [NSPropertyListSerialization dataWithPropertyList:objectFromDictionary(dictionary)
                                                      format:NSPropertyListXMLFormat_v1_0
                                                     options:0
                                                       error:nullptr];
}

} // namespace qbsp::appkit
