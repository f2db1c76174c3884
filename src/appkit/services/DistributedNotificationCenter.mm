#include "appkit/services/DistributedNotificationCenter.h"

#include "appkit/bridge/PropertyListConversion.h"
#include "appkit/bridge/Strings.h"
#include "appkit/services/HostProcess.h"
#include "appkit/services/NotificationDaemon.h"
#include "appkit/stores/OnceSaved.h"
#include "objc/GSTry.h"

namespace qbsp::appkit {

namespace {

/// What is posted, kept for as long as it may be posted again.
struct Notice {
    std::string name;
    std::string object;
    std::optional<platform::Dictionary> userInfo;
    bool immediately;

    void post(platform::Log& log) const {
        const auto send = [&] {
            [[NSDistributedNotificationCenter defaultCenter]
                postNotificationName:nsString(name)
                              object:nsString(object)
                            userInfo:objectFromDictionary(userInfo)
                  deliverImmediately:immediately ? YES : NO];
        };
        if (!notificationDaemonIsReady()) {
            log.log("ERROR: " + name + " could not be posted: the daemon of notifications does not start");
            return;
        }
        if (objc::tryObjC(send) == nil)
            return;
        if (NSException* failure = objc::tryObjC(send))
            log.log("ERROR: " + name + " could not be posted: " + utf8([failure reason]));
    }
};

} // namespace

AppKitDistributedNotificationCenter::AppKitDistributedNotificationCenter(platform::Log& log) : log_(log) {
    boundWaitForNotificationDaemon();
}

void AppKitDistributedNotificationCenter::postNotificationName(
    platform::NotificationName name, const std::string& object,
    const std::optional<platform::Dictionary>& userInfo, platform::NotificationOptions options) {
    const Notice notice{std::string(name.text), object, userInfo,
                        options == platform::NotificationOptions::deliverImmediately};
    notice.post(log_);
    // Who reads the stores now finds the old values when the new ones could not be saved, and is told again
    // then.
    onceSaved(notice.name, [notice] {
        AppKitLog log; // the pane, and its log, may have gone by then
        notice.post(log);
    });
}

} // namespace qbsp::appkit
