#include "appkit/stores/XMLData.h"

#include "appkit/bridge/PropertyListConversion.h"

namespace qbsp::appkit {

NSData* xmlData(const platform::Dictionary& dictionary) {
    return [NSPropertyListSerialization dataWithPropertyList:objectFromDictionary(dictionary)
                                                      format:NSPropertyListXMLFormat_v1_0
                                                     options:0
                                                       error:nullptr];
}

} // namespace qbsp::appkit
