#include "appkit/ProcessInfo.h"

#include "appkit/Strings.h"

namespace qbsp::appkit {

std::string AppKitProcessInfo::processName() const {
    return utf8([[NSProcessInfo processInfo] processName]);
}

} // namespace qbsp::appkit
