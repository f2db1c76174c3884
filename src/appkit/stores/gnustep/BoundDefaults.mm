#include "appkit/stores/gnustep/BoundDefaults.h"

#include "appkit/bridge/Strings.h"
#include "defaults/Domains.h"

#import <Foundation/Foundation.h>
#include <objc/runtime.h>

#include <filesystem>
#include <memory>
#include <system_error>
#include <tuple>

namespace qbsp::appkit {

namespace {

using Synchronize = BOOL (*)(id, SEL);

/// What bounds GNUstep's defaults, and what it stands in front of.
struct Bound {
    StoredLists* by = nullptr;
    Synchronize gnustepsOwn = nullptr;
    std::unique_ptr<files::DefaultsLock> lock; ///< while GNUstep's defaults have it
};

Bound& bound() {
    static Bound bound;
    return bound;
}

std::filesystem::path fileOfHost(const StoredLists& lists) {
    return lists.fileOfDomain(utf8(defaults::ownDomain()));
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
    const auto changed = std::filesystem::last_write_time(fileOfHost(lists).parent_path(), failure);
    if (!failure && changed == looked)
        return true;
    const bool canBe = canBeRead(fileOfHost(lists)) && canBeRead(lists.fileOfDomain(utf8(NSGlobalDomain)));
    if (canBe)
        looked = changed;
    return canBe;
}

// -[NSUserDefaults _lockDefaultsFile:]
BOOL takeLock(id, SEL, BOOL* wasTaken) {
    // Long enough for a lock that is held as usual, for some milliseconds.
    static files::Patience patience{std::chrono::milliseconds(300)};
    *wasTaken = bound().lock != nullptr;
    if (!*wasTaken)
        bound().lock = bound().by->takeLock(patience);
    return bound().lock != nullptr;
}

// -[NSUserDefaults _unlockDefaultsFile]
void giveLockBack(id, SEL) {
    bound().lock.reset();
}

BOOL synchronizeUnlessItWouldWait(id defaults, SEL selector) {
    return bound().by != nullptr && filesCanBeRead(*bound().by) && bound().gnustepsOwn(defaults, selector);
}

/// Replaces the method of GNUstep's defaults; returns what it was.
template <class Function>
Function replaceMethod(SEL selector, Function function) {
    Method method = class_getInstanceMethod([NSUserDefaults class], selector);
    using AnyFunction = void (*)(); // between types of functions that the compiler takes for incompatible
    // NOLINTBEGIN(cppcoreguidelines-pro-type-reinterpret-cast): the runtime has one type for all methods.
    const IMP before =
        method_setImplementation(method, reinterpret_cast<IMP>(reinterpret_cast<AnyFunction>(function)));
    return reinterpret_cast<Function>(reinterpret_cast<AnyFunction>(before));
    // NOLINTEND(cppcoreguidelines-pro-type-reinterpret-cast)
}

} // namespace

void boundStandardDefaults(StoredLists& lists) {
    std::ignore = defaults::ownDomain(); // makes the standard defaults, which call what is replaced below
    bound().by = &lists;
    bound().gnustepsOwn = replaceMethod(@selector(synchronize), synchronizeUnlessItWouldWait);
    // GNUstep waits 66 seconds for a lock, and again for the next file. It does so every half minute, and at
    // the end. Nobody can tell who has one that it took, so that one of a process that was killed is in the
    // way until it is old enough.
    replaceMethod(sel_registerName("_lockDefaultsFile:"), takeLock);
    replaceMethod(sel_registerName("_unlockDefaultsFile"), giveLockBack);
}

} // namespace qbsp::appkit
