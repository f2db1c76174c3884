#import "FoundationList.h"

#include <fcntl.h>
#include <stdio.h>
#include <sys/stat.h>
#include <unistd.h>

static NSString* const listKey = @"UserSpecifiedFullScreenApplications";

@implementation FoundationRow

- (id)initWithName:(NSString*)name hide:(NSNumber*)hide {
    self = [super init];
    if (self != nil) {
        appName = [name retain];
        hideApp = [hide retain];
    }
    return self;
}

- (void)dealloc {
    [appName release];
    [hideApp release];
    [super dealloc];
}

- (NSComparisonResult)compareStringUsingSelector:(FoundationRow*)other {
    return [appName caseInsensitiveCompare:other->appName];
}

@end

static NSMutableDictionary* dictionaryIn(NSString* file) {
    id contents = [NSPropertyListSerialization propertyListWithData:[NSData dataWithContentsOfFile:file]
                                                            options:NSPropertyListMutableContainers
                                                             format:NULL
                                                              error:NULL];
    return [contents isKindOfClass:[NSDictionary class]] ? contents : [NSMutableDictionary dictionary];
}

static BOOL syncFolder(NSString* folder) {
    const int descriptor = open([folder fileSystemRepresentation], O_RDONLY);
    const BOOL isSynced = descriptor >= 0 && fsync(descriptor) == 0;
    if (descriptor >= 0)
        close(descriptor);
    return isSynced;
}

static BOOL writeSynced(NSData* bytes, NSString* file) {
    const int flags = O_WRONLY | O_CREAT | O_EXCL;
    const int descriptor = open([file fileSystemRepresentation], flags, S_IRUSR | S_IWUSR);
    if (descriptor < 0)
        return NO;
    const BOOL isWritten = write(descriptor, [bytes bytes], [bytes length]) == (ssize_t)[bytes length];
    const BOOL isSynced = fsync(descriptor) == 0;
    close(descriptor);
    return isWritten && isSynced;
}

static NSString* failureOfReplacing(NSString* file, NSData* bytes) {
    NSString* draft = [file stringByAppendingPathExtension:@"draft"];
    if (!writeSynced(bytes, draft))
        return @"the draft could not be written";
    if (![[NSData dataWithContentsOfFile:draft] isEqualToData:bytes])
        return @"the draft was not read back";
    if (rename([draft fileSystemRepresentation], [file fileSystemRepresentation]) != 0)
        return @"the draft could not take its place";
    return syncFolder([file stringByDeletingLastPathComponent]) ? nil : @"the folder could not be synced";
}

static NSString* failureUnderLock(NSArray* rows, NSString* file) {
    NSMutableDictionary* contents = dictionaryIn(file);
    NSMutableDictionary* list = [NSMutableDictionary dictionaryWithCapacity:[rows count]];
    for (FoundationRow* row in rows)
        [list setObject:row->hideApp forKey:row->appName];
    [contents setObject:list forKey:listKey];
    NSData* bytes = [NSPropertyListSerialization dataWithPropertyList:contents
                                                               format:NSPropertyListXMLFormat_v1_0
                                                              options:0
                                                                error:NULL];
    return bytes == nil ? @"it has no form" : failureOfReplacing(file, bytes);
}

NSMutableArray* loadedByFoundation(NSString* file) {
    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
    NSDictionary* list = [dictionaryIn(file) objectForKey:listKey];
    NSMutableArray* rows = [[NSMutableArray alloc] initWithCapacity:[list count]];
    for (NSString* name in list) {
        FoundationRow* row = [[FoundationRow alloc] initWithName:name hide:[list objectForKey:name]];
        [rows addObject:row];
        [row release];
    }
    [rows sortUsingSelector:@selector(compareStringUsingSelector:)];
    [pool release];
    return rows;
}

NSUInteger foundByFoundation(NSArray* rows, NSString* name) {
    NSUInteger index = 0;
    for (FoundationRow* row in rows) {
        if ([row->appName caseInsensitiveCompare:name] == NSOrderedSame)
            return index;
        ++index;
    }
    return NSNotFound;
}

NSString* failureOfSaveByFoundation(NSArray* rows, NSString* file) {
    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
    NSString* place =
        [[file stringByDeletingLastPathComponent] stringByAppendingPathComponent:@"baseline.lck"];
    NSDistributedLock* lock = [NSDistributedLock lockWithPath:place];
    NSString* failure = @"the lock is held";
    if ([lock tryLock]) {
        failure = failureUnderLock(rows, file);
        [lock unlock];
    }
    [failure retain];
    [pool release];
    return [failure autorelease];
}
