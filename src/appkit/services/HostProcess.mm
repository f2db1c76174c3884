#include "appkit/services/HostProcess.h"

#include "appkit/bridge/Strings.h"
#include "appkit/services/Registrar.h"

#import <AppKit/AppKit.h>

/// Implemented by the pane's own hosts; other hosts implement neither.
@interface NSObject (QBSPHostProperties)
- (BOOL)isSandboxed;
- (BOOL)isPro;
@end

namespace qbsp::appkit {

platform::URL AppKitBundles::mainBundleURL() const {
    return platform::URL::fileURLWithPath(utf8([[NSBundle mainBundle] bundlePath]));
}

std::optional<std::string>
AppKitBundles::executablePathOfBundleForClassOf(const QBSPSorterControl* registrar) const {
    const auto* adapter = dynamic_cast<const RegistrarAdapter*>(registrar);
    Class registrarClass = adapter == nullptr ? Nil : adapter->objectClass();
    return optionalUTF8([[NSBundle bundleForClass:registrarClass] executablePath]);
}

std::string AppKitBundles::localizedStringForKey(platform::TextKey key, platform::FallbackText value,
                                                 std::optional<platform::TextTable> table) const {
    NSString* tableName = table ? nsString(table->text) : nil;
    return utf8([[NSBundle bundleForClass:paneClass_] localizedStringForKey:nsString(key.text)
                                                                      value:nsString(value.text)
                                                                      table:tableName]);
}

bool AppKitHost::isSandboxed() const {
    return [NSApp respondsToSelector:@selector(isSandboxed)] && [NSApp isSandboxed];
}

bool AppKitHost::isPro() const {
    return [NSApp respondsToSelector:@selector(isPro)] && [NSApp isPro];
}

std::string AppKitProcessInfo::processName() const {
    return utf8([[NSProcessInfo processInfo] processName]);
}

void AppKitLog::log(std::string_view line) {
    NSLog(@"%@", nsString(line));
}

} // namespace qbsp::appkit
