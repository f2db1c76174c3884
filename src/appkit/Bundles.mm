#include "appkit/Bundles.h"

#include "appkit/RegistrarAdapter.h"
#include "appkit/Strings.h"

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

} // namespace qbsp::appkit
