#include "defaults/Domains.h"

#include <cstdio>

// Prints the domain of the standard user defaults of a program of its name, in a bundle like its own.
int main() {
    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
    std::puts([defaults::ownDomain() UTF8String]);
    [pool release];
    return 0;
}
