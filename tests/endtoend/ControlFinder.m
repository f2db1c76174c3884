// A bundle that an application loads when the default "GSAppKitUserBundles" lists it, and that then says
// where the application's controls are. Questions arrive in the pipe "questions" of the folder that the
// default "ControlFinderFolder" names, a line each: a number and the names of fields. To the last of them it
// replies with the file "answer": that number, the process, and the controls that the user sees.
#import <AppKit/AppKit.h>
#import <GNUstepGUI/GSDisplayServer.h>
#import <objc/runtime.h>

#include <fcntl.h>
#include <unistd.h>

@interface ControlFinder : NSObject <RunLoopEvents> {
    NSString* folder;
}
@end

// What only some views have.
@interface NSView (Contents)
- (NSString*)title;
- (NSString*)stringValue;
- (BOOL)isEnabled;
- (NSView*)controlNamed:(NSString*)name;
@end

static NSNumber* whole(CGFloat number) {
    return [NSNumber numberWithInteger:(NSInteger)number];
}

/// Left, top, width and height in the window's content, from its top left.
static NSArray* placeOf(NSView* view, NSRect rect) {
    NSView* content = [[view window] contentView];
    const NSRect frame = [view convertRect:rect toView:content];
    const CGFloat top = [content isFlipped] ? NSMinY(frame) : NSHeight([content bounds]) - NSMaxY(frame);
    return [NSArray arrayWithObjects:whole(NSMinX(frame)), whole(top), whole(NSWidth(frame)),
                                     whole(NSHeight(frame)), nil];
}

/// Adds what is seen of that part of the view, unless that is nothing.
static void add(NSMutableArray* controls, NSDictionary* values, NSView* view, NSRect part) {
    const NSRect seen = NSIntersectionRect(part, [view visibleRect]);
    if (NSIsEmptyRect(seen))
        return;
    NSWindow* window = [view window];
    const uintptr_t number = (uintptr_t)[GSServerForWindow(window) windowDevice:(int)[window windowNumber]];
    NSMutableDictionary* control = [NSMutableDictionary dictionaryWithDictionary:values];
    [control setObject:[NSNumber numberWithUnsignedLong:number] forKey:@"window"];
    [control setObject:placeOf([window contentView], [[window contentView] bounds]) forKey:@"content"];
    [control setObject:placeOf(view, seen) forKey:@"place"];
    [controls addObject:control];
}

static NSString* text(id value) {
    return [value isKindOfClass:[NSString class]] ? value : @"";
}

/// The title. A view of a host's own may have a cell for its label instead.
static NSString* titleOf(NSView* view) {
    if ([view respondsToSelector:@selector(title)])
        return text([view title]);
    Ivar label = class_getInstanceVariable([view class], "label");
    return label == NULL ? @"" : text([object_getIvar(view, label) stringValue]);
}

/// The one of the fields that is this view's name to the view that holds it.
static NSString* nameOf(NSView* view, NSArray* fields) {
    NSView* holder = [view superview];
    while (holder != nil && ![holder respondsToSelector:@selector(controlNamed:)])
        holder = [holder superview];
    for (NSUInteger index = 0; index < [fields count]; ++index)
        if (holder != nil && [holder controlNamed:[fields objectAtIndex:index]] == view)
            return [fields objectAtIndex:index];
    return @"";
}

static NSDictionary* valuesOf(NSView* view, NSArray* fields) {
    const BOOL enabled = ![view respondsToSelector:@selector(isEnabled)] || [view isEnabled];
    NSString* value = [view respondsToSelector:@selector(stringValue)] ? text([view stringValue]) : @"";
    return [NSDictionary dictionaryWithObjectsAndKeys:nameOf(view, fields), @"name", titleOf(view), @"title",
                                                      value, @"value", [NSNumber numberWithBool:enabled],
                                                      @"enabled", nil];
}

static void addCells(NSTableView* table, NSString* name, NSMutableArray* controls) {
    for (NSInteger row = 0; row < [table numberOfRows]; ++row)
        for (NSInteger index = 0; index < [table numberOfColumns]; ++index) {
            NSTableColumn* column = [[table tableColumns] objectAtIndex:(NSUInteger)index];
            id value = [[table dataSource] tableView:table objectValueForTableColumn:column row:row];
            NSDictionary* values =
                [NSDictionary dictionaryWithObjectsAndKeys:name, @"name", [column identifier], @"column",
                                                           [NSNumber numberWithInteger:row], @"row",
                                                           [value description], @"value", nil];
            add(controls, values, table, [table frameOfCellAtColumn:index row:row]);
        }
}

static void addControls(NSView* view, NSArray* fields, NSMutableArray* controls) {
    if ([view isHidden])
        return;
    NSDictionary* values = valuesOf(view, fields);
    add(controls, values, view, [view bounds]);
    if ([view isKindOfClass:[NSTableView class]])
        addCells((NSTableView*)view, [values objectForKey:@"name"], controls);
    for (NSUInteger index = 0; index < [[view subviews] count]; ++index)
        addControls([[view subviews] objectAtIndex:index], fields, controls);
}

static NSArray* controlsOnTheScreen(NSArray* fields) {
    NSMutableArray* controls = [NSMutableArray array];
    for (NSUInteger index = 0; index < [[NSApp windows] count]; ++index) {
        NSWindow* window = [[NSApp windows] objectAtIndex:index];
        if ([window isVisible])
            addControls([window contentView], fields, controls);
    }
    return controls;
}

/// The words of the last line in the pipe, nil when there is none.
static NSArray* lastQuestion(int pipe) {
    char bytes[4096];
    const ssize_t count = read(pipe, bytes, sizeof bytes);
    if (count <= 0)
        return nil;
    NSString* lines = [[[NSString alloc] initWithBytes:bytes
                                                length:(NSUInteger)count
                                              encoding:NSUTF8StringEncoding] autorelease];
    NSCharacterSet* ends = [NSCharacterSet newlineCharacterSet];
    NSString* last =
        [[[lines stringByTrimmingCharactersInSet:ends] componentsSeparatedByCharactersInSet:ends] lastObject];
    return [last componentsSeparatedByString:@" "];
}

@implementation ControlFinder

// The host is left alone until a question comes: a signal that it handles where it is interrupted must find
// it idle.
- (void)listen {
    const char* path = [[folder stringByAppendingPathComponent:@"questions"] fileSystemRepresentation];
    void* const pipe = (void*)(intptr_t)open(path, O_RDWR | O_NONBLOCK);
    NSString* const modes[] = {NSDefaultRunLoopMode, NSModalPanelRunLoopMode, NSEventTrackingRunLoopMode};
    for (int index = 0; index < 3; ++index)
        [[NSRunLoop currentRunLoop] addEvent:pipe type:ET_RDESC watcher:self forMode:modes[index]];
}

- (id)init {
    if ((self = [super init]) != nil) {
        folder = [[[NSUserDefaults standardUserDefaults] stringForKey:@"ControlFinderFolder"] retain];
        [self listen];
    }
    return self;
}

- (void)answer:(NSArray*)question {
    NSArray* fields = [question subarrayWithRange:NSMakeRange(1, [question count] - 1)];
    NSDictionary* answer = [NSDictionary
        dictionaryWithObjectsAndKeys:[question objectAtIndex:0], @"number", [NSNumber numberWithInt:getpid()],
                                     @"process", controlsOnTheScreen(fields), @"controls", nil];
    NSData* data = [NSPropertyListSerialization dataWithPropertyList:answer
                                                              format:NSPropertyListXMLFormat_v1_0
                                                             options:0
                                                               error:NULL];
    [data writeToFile:[folder stringByAppendingPathComponent:@"answer"] atomically:YES];
}

- (void)receivedEvent:(void*)pipe type:(RunLoopEventType)type extra:(void*)extra forMode:(NSString*)mode {
    NSArray* question = lastQuestion((int)(intptr_t)pipe);
    if (question != nil)
        [self answer:question];
}

@end
