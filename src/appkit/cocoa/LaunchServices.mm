#include "appkit/LaunchServices.h"

#include "appkit/URLs.h"

#import <CoreServices/CoreServices.h>

namespace qbsp::appkit {

std::int32_t AppKitLaunchServices::registerURL(const platform::URL& url,
                                               platform::RegistrationUpdate update) {
    return LSRegisterURL((CFURLRef)nsURL(url), update == platform::RegistrationUpdate::always);
}

} // namespace qbsp::appkit
