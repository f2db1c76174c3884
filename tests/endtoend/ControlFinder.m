// A bundle that an application loads when the default "GSAppKitUserBundles" lists it, and that then says
// where the application's controls are. It looks for the file "question" in the folder of the default
// "ControlFinderFolder": a property list with a number and the names of fields. Each time the number is
// another one, it writes the file "answer": that number, and the controls that the user sees.
#import <AppKit/AppKit.h>
#import <GNUstepGUI/GSDisplayServer.h>
#import <objc/runtime.h>

static const NSTimeInterval timeBetweenLooks = 0.02;

@interface ControlFinder : NSObject {
    NSString* folder;
    id answered;
}
@end

// What only some views have.
@interface NSView (Contents)
- (NSString*)title;
- (NSString*)stringValue;
- (BOOL)isEnabled;
- (NSView*)controlNamed:(NSString*)name;
@end

static NSDictionary* propertyList(NSString* path) {
    NSData* data = [NSData dataWithContentsOfFile:path];
    return data == nil ? nil
                       : [NSPropertyListSerialization propertyListWithData:data
                                                                   options:NSPropertyListImmutable
                                                                    format:NULL
                                                                     error:NULL];
}

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

@implementation ControlFinder

- (id)init {
    if ((self = [super init]) != nil) {
        folder = [[[NSUserDefaults standardUserDefaults] stringForKey:@"ControlFinderFolder"] retain];
        NSTimer* timer = [NSTimer timerWithTimeInterval:timeBetweenLooks
                                                 target:self
                                               selector:@selector(look)
                                               userInfo:nil
                                                repeats:YES];
        [[NSRunLoop currentRunLoop] addTimer:timer forMode:NSDefaultRunLoopMode];
        [[NSRunLoop currentRunLoop] addTimer:timer forMode:NSModalPanelRunLoopMode];
        [[NSRunLoop currentRunLoop] addTimer:timer forMode:NSEventTrackingRunLoopMode];
    }
    return self;
}

- (void)answer:(NSDictionary*)question {
    NSArray* controls = controlsOnTheScreen([question objectForKey:@"fields"]);
    NSDictionary* answer =
        [NSDictionary dictionaryWithObjectsAndKeys:answered, @"number", controls, @"controls", nil];
    NSData* data = [NSPropertyListSerialization dataWithPropertyList:answer
                                                              format:NSPropertyListXMLFormat_v1_0
                                                             options:0
                                                               error:NULL];
    [data writeToFile:[folder stringByAppendingPathComponent:@"answer"] atomically:YES];
}

- (void)look {
    NSDictionary* question = propertyList([folder stringByAppendingPathComponent:@"question"]);
    id number = [question objectForKey:@"number"];
    if (number == nil || [number isEqual:answered])
        return;
    [answered release];
    answered = [number retain];
    [self answer:question];
}

@end
