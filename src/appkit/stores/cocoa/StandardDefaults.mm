#include "appkit/stores/StandardDefaults.h"

namespace qbsp::appkit {

void setStandardDefault(id value, NSString* key) {
    [[NSUserDefaults standardUserDefaults] setObject:value forKey:key];
}

bool flushStandardDefaults() {
    return [[NSUserDefaults standardUserDefaults] synchronize];
}

} // namespace qbsp::appkit
