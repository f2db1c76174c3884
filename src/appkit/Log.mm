#include "appkit/Log.h"

#include "appkit/Strings.h"

namespace qbsp::appkit {

void AppKitLog::log(std::string_view line) {
    NSLog(@"%@", nsString(line));
}

} // namespace qbsp::appkit
