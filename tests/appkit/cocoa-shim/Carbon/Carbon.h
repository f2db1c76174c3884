#pragma once

#include <CoreServices/CoreServices.h>

// The keyboard layout services, as far as the recorder uses them.

typedef unsigned char UInt8;
typedef unsigned short UInt16;
typedef unsigned int UInt32;
typedef unsigned short UniChar;
typedef unsigned long UniCharCount;
typedef struct UCKeyboardLayout UCKeyboardLayout;
typedef struct __TISInputSource* TISInputSourceRef;
typedef const struct __CFData* CFDataRef;

enum { noErr = 0, kUCKeyActionDisplay = 3, kUCKeyTranslateNoDeadKeysMask = 1 };

extern "C" {
extern const CFStringRef kTISNotifySelectedKeyboardInputSourceChanged;
extern const CFStringRef kTISPropertyUnicodeKeyLayoutData;

TISInputSourceRef TISCopyCurrentKeyboardLayoutInputSource(void);
void* TISGetInputSourceProperty(TISInputSourceRef source, CFStringRef property);
const UInt8* CFDataGetBytePtr(CFDataRef data);
UInt8 LMGetKbdType(void);
OSStatus UCKeyTranslate(const UCKeyboardLayout* layout, UInt16 key, UInt16 action, UInt32 modifiers,
                        UInt32 keyboardType, UInt32 options, UInt32* deadKeyState, UniCharCount longest,
                        UniCharCount* length, UniChar* text);
}
