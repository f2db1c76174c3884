#include "appkit/Runtime.h"

#include "appkit/Strings.h"

namespace qbsp::appkit {

QBSPSorterControl* AppKitLoaderClass::defaultLoader() {
    // By name: the class belongs to the host, and nothing here links against it.
    SEL defaultLoader = NSSelectorFromString(@"defaultLoader");
    const bool answers = [static_cast<id>(loader_) respondsToSelector:defaultLoader];
    id registrar = answers ? [static_cast<id>(loader_) performSelector:defaultLoader] : nil;
    return registrar == nil ? nullptr : &registrar_.emplace(registrar);
}

platform::LoaderClass* AppKitRuntime::classFromString(platform::ClassName name) {
    Class found = NSClassFromString(nsString(name.text));
    return found == Nil ? nullptr : &found_.emplace(found);
}

} // namespace qbsp::appkit
