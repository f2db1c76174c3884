#pragma once

#include <CoreFoundation/CoreFoundation.h>

extern "C" {
extern const CFStringRef kSMDomainUserLaunchd;

Boolean SMLoginItemSetEnabled(CFStringRef identifier, Boolean enabled);
CFArrayRef SMCopyAllJobDictionaries(CFStringRef domain);
}
