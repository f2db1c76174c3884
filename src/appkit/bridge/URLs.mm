#import "appkit/bridge/URLs.h"

#include "appkit/bridge/Strings.h"

namespace qbsp::appkit {

NSURL* nsURL(const platform::URL& url) {
    return [NSURL fileURLWithPath:nsString(url.path())];
}

NSURL* nsURL(const std::optional<platform::URL>& url) {
    return url ? nsURL(*url) : nil;
}

std::optional<platform::URL> urlFromNSURL(NSURL* url) {
    NSString* path = [url path];
    if (path == nil)
        return std::nullopt;
    return platform::URL::fileURLWithPath(utf8(path));
}

} // namespace qbsp::appkit
