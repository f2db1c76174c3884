#pragma once

#include <CoreFoundation/CoreFoundation.h>

typedef int OSStatus;

extern "C" OSStatus LSRegisterURL(CFURLRef url, Boolean update);
