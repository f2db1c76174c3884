#include "appkit/stores/gnustep/DomainFile.h"

#include "appkit/bridge/Strings.h"
#include "appkit/stores/PropertyLists.h"
#include "appkit/stores/XMLData.h"
#include "appkit/stores/gnustep/DefaultsFolder.h"
#include "appkit/stores/gnustep/DefaultsLock.h"
#include "appkit/stores/gnustep/SettingAside.h"
#include "files/Draft.h"

#include <filesystem>
#include <string_view>
#include <system_error>

namespace qbsp::appkit {

using platform::Dictionary;

namespace {

Dictionary merged(Dictionary contents, const Dictionary& changes) {
    for (const auto& [key, value] : changes) {
        if (value.exists())
            contents[key] = value;
        else
            contents.erase(key);
    }
    return contents;
}

bool removeFile(const std::string& file) {
    std::error_code failure;
    std::filesystem::remove(file, failure);
    return !failure;
}

} // namespace

std::string DomainFile::path() const {
    NSString* file = [nsString(domain_) stringByAppendingPathExtension:@"plist"];
    return utf8([defaultsFolder() stringByAppendingPathComponent:file]);
}

Dictionary DomainFile::contents() const {
    return AppKitPropertyLists().dictionaryWithContentsOfFile(path()).value_or(Dictionary());
}

bool DomainFile::setAsideIfUnreadable() const {
    return setAsideUnlessDictionary(path());
}

bool DomainFile::merge(const Dictionary& changes) const {
    // What breaks a stale lock says so through the shared defaults, which must exist by then.
    [NSUserDefaults standardUserDefaults];
    const DefaultsLock lock;
    return lock.isHeld() && setAsideIfUnreadable() && write(merged(contents(), changes));
}

bool DomainFile::write(const Dictionary& contents) const {
    if (contents.empty())
        return removeFile(path());
    NSData* xml = xmlData(contents);
    const std::string_view bytes(static_cast<const char*>([xml bytes]), [xml length]);
    return !files::writeWhole(path(), bytes);
}

} // namespace qbsp::appkit
