#pragma once

// As much of CoreFoundation as the adapters use, to check their syntax on other systems.

typedef const void* CFTypeRef;
typedef CFTypeRef CFPropertyListRef;
typedef const struct __CFString* CFStringRef;
typedef const struct __CFArray* CFArrayRef;
typedef const struct __CFURL* CFURLRef;
typedef unsigned char Boolean;

extern "C" {
extern const CFStringRef kCFPreferencesCurrentApplication;
extern const CFStringRef kCFPreferencesCurrentUser;
extern const CFStringRef kCFPreferencesAnyHost;

void CFRelease(CFTypeRef object);
void CFPreferencesAddSuitePreferencesToApp(CFStringRef application, CFStringRef suite);
void CFPreferencesRemoveSuitePreferencesFromApp(CFStringRef application, CFStringRef suite);
CFPropertyListRef CFPreferencesCopyAppValue(CFStringRef key, CFStringRef application);
void CFPreferencesSetAppValue(CFStringRef key, CFPropertyListRef value, CFStringRef application);
void CFPreferencesSetValue(CFStringRef key, CFPropertyListRef value, CFStringRef application,
                           CFStringRef user, CFStringRef host);
Boolean CFPreferencesSynchronize(CFStringRef application, CFStringRef user, CFStringRef host);
}
