#include "appkit/gnustep/DomainFile.h"

#include "appkit/PropertyLists.h"
#include "appkit/Strings.h"
#include "appkit/XMLData.h"
#include "appkit/gnustep/DefaultsLock.h"
#include "xdg/WholeFile.h"

#include <sys/stat.h>

namespace qbsp::appkit {

using platform::Dictionary;

namespace {

NSString* defaultsFolder() {
    return GSDefaultsRootForUser(NSUserName());
}

std::optional<Dictionary> dictionaryAt(NSString* path) {
    return AppKitPropertyLists().dictionaryWithContentsOfFile(optionalUTF8(path));
}

bool hasBytes(NSString* path) {
    return [[[NSFileManager defaultManager] fileAttributesAtPath:path traverseLink:YES] fileSize] > 0;
}

NSString* unusedNameFor(NSString* path) {
    NSString* name = [path stringByAppendingString:@".unreadable"];
    for (int number = 2; [[NSFileManager defaultManager] fileExistsAtPath:name]; ++number)
        name = [NSString stringWithFormat:@"%@.unreadable-%d", path, number];
    return name;
}

bool setAside(NSString* path) {
    NSString* name = unusedNameFor(path);
    const bool moved = [[NSFileManager defaultManager] movePath:path toPath:name handler:nil];
    if (moved)
        NSLog(@"%@ is not a property list; it was kept as %@", path, [name lastPathComponent]);
    return moved;
}

Dictionary merged(Dictionary contents, const Dictionary& changes) {
    for (const auto& [key, value] : changes) {
        if (value.exists())
            contents[key] = value;
        else
            contents.erase(key);
    }
    return contents;
}

bool removeFile(NSString* path) {
    NSFileManager* manager = [NSFileManager defaultManager];
    return ![manager fileExistsAtPath:path] || [manager removeFileAtPath:path handler:nil];
}

} // namespace

NSString* DomainFile::path() const {
    NSString* file = [nsString(domain_) stringByAppendingPathExtension:@"plist"];
    return [defaultsFolder() stringByAppendingPathComponent:file];
}

Dictionary DomainFile::contents() const {
    return dictionaryAt(path()).value_or(Dictionary());
}

bool DomainFile::merge(const Dictionary& changes) const {
    // What breaks a stale lock says so through the shared defaults, which must exist by then.
    [NSUserDefaults standardUserDefaults];
    const DefaultsLock lock(defaultsFolder());
    return lock.isHeld() && makeWritable() && write(merged(contents(), changes));
}

bool DomainFile::makeWritable() const {
    NSString* file = path();
    if (!hasBytes(file) || dictionaryAt(file))
        return true;
    return [[NSFileManager defaultManager] isReadableFileAtPath:file] && setAside(file);
}

bool DomainFile::write(const Dictionary& contents) const {
    if (contents.empty())
        return removeFile(path());
    NSData* xml = xmlData(contents);
    const std::string_view bytes(static_cast<const char*>([xml bytes]), [xml length]);
    const std::string file = utf8(path());
    return xdg::writeWhole(file, bytes) && chmod(file.c_str(), S_IRUSR | S_IWUSR) == 0;
}

} // namespace qbsp::appkit
