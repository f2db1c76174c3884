#include "appkit/services/DistributedNotificationCenter.h"

#include "appkit/bridge/PropertyListConversion.h"
#include "appkit/bridge/Strings.h"
#include "objc/GSTry.h"

namespace qbsp::appkit {

void AppKitDistributedNotificationCenter::postNotificationName(
    platform::NotificationName name, const std::string& object,
    const std::optional<platform::Dictionary>& userInfo, platform::NotificationOptions options) {
    const auto post = [&] {
        const bool immediately = options == platform::NotificationOptions::deliverImmediately;
        [[NSDistributedNotificationCenter defaultCenter] postNotificationName:nsString(name.text)
                                                                       object:nsString(object)
                                                                     userInfo:objectFromDictionary(userInfo)
                                                           deliverImmediately:immediately ? YES : NO];
    };
    if (objc::tryObjC(post) == nil)
        return;
    if (NSException* failure = objc::tryObjC(post))
        log_.log("ERROR: " + std::string(name.text) + " could not be posted: " + utf8([failure reason]));
}

} // namespace qbsp::appkit
