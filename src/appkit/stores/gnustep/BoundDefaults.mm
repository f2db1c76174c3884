#include "appkit/stores/gnustep/BoundDefaults.h"

#include "appkit/bridge/Strings.h"

#import <Foundation/Foundation.h>
#include <objc/runtime.h>

#include <filesystem>
#include <system_error>

namespace qbsp::appkit {

namespace {

using Synchronize = BOOL (*)(id, SEL);

/// What bounds GNUstep's defaults, and what it stands in front of.
struct Bound {
    StoredLists* by = nullptr;
    Synchronize gnustepsOwn = nullptr;
};

Bound& bound() {
    static Bound bound;
    return bound;
}

std::filesystem::path hostFile(const StoredLists& lists) {
    return lists.fileOfDomain(utf8([[NSProcessInfo processInfo] processName]));
}

bool canBeRead(const std::filesystem::path& file) {
    const auto state = readListFile(file, largestStore).state;
    return state == ListFile::State::absent || state == ListFile::State::read;
}

/// GNUstep takes what it cannot read for empty, and calls itself for each level of nesting. It reads the two
/// files again when their folder has changed.
bool filesCanBeRead(const StoredLists& lists) {
    static std::filesystem::file_time_type looked;
    std::error_code failure;
    const auto changed = std::filesystem::last_write_time(hostFile(lists).parent_path(), failure);
    if (!failure && changed == looked)
        return true;
    const bool canBe = canBeRead(hostFile(lists)) && canBeRead(lists.fileOfDomain(utf8(NSGlobalDomain)));
    if (canBe)
        looked = changed;
    return canBe;
}

BOOL synchronizeUnlessItWouldWait(id defaults, SEL selector) {
    // Long enough for a lock that is held as usual, for some milliseconds.
    static files::Patience patience{std::chrono::milliseconds(300)};
    StoredLists* const lists = bound().by;
    return lists != nullptr && filesCanBeRead(*lists) && lists->lockCanBeTaken(patience) &&
           bound().gnustepsOwn(defaults, selector);
}

} // namespace

void boundStandardDefaults(StoredLists& lists) {
    bound().by = &lists;
    // GNUstep waits 66 seconds for a lock, and again for the next file. It does so every half minute, and at
    // the end.
    Method method = class_getInstanceMethod([NSUserDefaults class], @selector(synchronize));
    using AnyFunction = void (*)(); // between types of functions that the compiler takes for incompatible
    // NOLINTBEGIN(cppcoreguidelines-pro-type-reinterpret-cast): the runtime has one type for all methods.
    bound().gnustepsOwn =
        reinterpret_cast<Synchronize>(reinterpret_cast<AnyFunction>(method_getImplementation(method)));
    method_setImplementation(
        method, reinterpret_cast<IMP>(reinterpret_cast<AnyFunction>(synchronizeUnlessItWouldWait)));
    // NOLINTEND(cppcoreguidelines-pro-type-reinterpret-cast)
}

} // namespace qbsp::appkit
