#include "appkit/stores/gnustep/StandardDefaults.h"

#include "appkit/bridge/PropertyListConversion.h"
#include "appkit/bridge/Strings.h"
#include "appkit/stores/gnustep/Saving.h"
#include "objc/GSTry.h"

#import <Foundation/Foundation.h>
#include <objc/runtime.h>

#include <array>
#include <filesystem>
#include <system_error>

namespace qbsp::appkit {

namespace {

// A volatile domain of its own, before the host's. What is set in the host's domain itself would be written
// by GNUstep, which changes other keys: it clips wide integers, rounds reals, and writes characters such as
// emoji as escapes.
NSString* const shownDomain = @"com.quarrybook.SorterPane.unsaved";

NSString* hostDomain() {
    return [[NSProcessInfo processInfo] processName];
}

std::filesystem::path defaultsFolder() {
    return hostFile().parent_path();
}

void searchShownDomain(NSUserDefaults* defaults) {
    NSMutableArray* list = [[[defaults searchList] mutableCopy] autorelease];
    const NSUInteger host = [list indexOfObject:hostDomain()];
    if ([list containsObject:shownDomain] || host == NSNotFound)
        return;
    [list insertObject:shownDomain atIndex:host];
    [defaults setSearchList:list];
}

bool canBeRead(const std::filesystem::path& file) {
    const auto state = readListFile(file, largestStore).state;
    return state == ListFile::State::absent || state == ListFile::State::read;
}

/// GNUstep takes what it cannot read for empty, and calls itself for each level of nesting. It reads the two
/// files again when their folder has changed.
bool filesCanBeRead() {
    static std::filesystem::file_time_type looked;
    std::error_code failure;
    const auto changed = std::filesystem::last_write_time(defaultsFolder(), failure);
    if (!failure && changed == looked)
        return true;
    const bool canBe = canBeRead(hostFile()) && canBeRead(storedLists().fileOfDomain(utf8(NSGlobalDomain)));
    if (canBe)
        looked = changed;
    return canBe;
}

using Synchronize = BOOL (*)(id, SEL);
using AnyFunction = void (*)(); // between types of functions that the compiler takes for incompatible
Synchronize gnustepsOwn = nullptr;

BOOL synchronizeUnlessItWouldWait(id defaults, SEL selector) {
    return filesCanBeRead() && storedLists().lockCanBeTaken() && gnustepsOwn(defaults, selector);
}

} // namespace

void boundStandardDefaults() {
    if (gnustepsOwn != nullptr)
        return;
    // GNUstep waits 66 seconds for a lock, and again for the next file. It does so every half minute, and at
    // the end.
    Method method = class_getInstanceMethod([NSUserDefaults class], @selector(synchronize));
    gnustepsOwn =
        reinterpret_cast<Synchronize>(reinterpret_cast<AnyFunction>(method_getImplementation(method)));
    method_setImplementation(
        method, reinterpret_cast<IMP>(reinterpret_cast<AnyFunction>(synchronizeUnlessItWouldWait)));
}

void showInStandardDefaults(const std::string& key, const platform::Value& value) {
    NSUserDefaults* defaults = [NSUserDefaults standardUserDefaults];
    searchShownDomain(defaults);
    NSMutableDictionary* shown =
        [NSMutableDictionary dictionaryWithDictionary:[defaults volatileDomainForName:shownDomain]];
    [shown setValue:objectFromValue(value) forKey:nsString(key)];
    [defaults removeVolatileDomainForName:shownDomain]; // one of that name may not be set
    [defaults setVolatileDomain:shown forName:shownDomain];
}

void bringStandardDefaultsUpToDate() {
    NSUserDefaults* defaults = [NSUserDefaults standardUserDefaults];
    BOOL done = NO;
    const auto synchronize = [&] { done = [defaults synchronize]; };
    if (objc::tryObjC(synchronize) == nil && done && !storedLists().waits(hostFile()))
        [defaults removeVolatileDomainForName:shownDomain];
}

} // namespace qbsp::appkit
