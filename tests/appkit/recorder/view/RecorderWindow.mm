#import "RecorderWindow.h"

#include <algorithm>
#include <array>

using namespace qbsp::recorder;

namespace {

/// The modifier keys, by their X key codes.
bool isModifierKey(unsigned keyCode) {
    constexpr std::array<unsigned, 11> keys{37, 50, 62, 64, 66, 77, 92, 105, 108, 133, 134};
    return std::ranges::find(keys, keyCode) != keys.end();
}

} // namespace

@implementation RecordingDelegate

- (id)initWithCalls:(DelegateCalls*)calls {
    if ((self = [super init]) != nil)
        _calls = calls;
    return self;
}

- (BOOL)recorderView:(QBSPRecorderView*)__attribute__((unused))view
           isKeyCode:(NSInteger)code
       andFlagsTaken:(NSUInteger)cocoaFlags
              reason:(NSString**)reason {
    const KeyCombo combo{.flags = cocoaFlags, .code = code};
    _calls->offered.push_back(combo);
    if (combo != _calls->taken)
        return NO;
    *reason = @"this combination is used elsewhere";
    return YES;
}

- (void)recorderView:(QBSPRecorderView*)__attribute__((unused))view
    keyComboDidChange:(NSInteger)code
                flags:(NSUInteger)cocoaFlags {
    _calls->reported.push_back({.flags = cocoaFlags, .code = code});
}

@end

@implementation RecorderWindow

- (id)initAtOrigin:(NSPoint)origin {
    const NSRect rect = NSMakeRect(origin.x, origin.y, 320, 200);
    return [super initWithContentRect:rect
                            styleMask:NSTitledWindowMask
                              backing:NSBackingStoreBuffered
                                defer:NO];
}

- (void)fill {
    first = [[[QBSPRecorderView alloc] initWithFrame:NSMakeRect(60, 160, 200, 26)] autorelease];
    second = [[[QBSPRecorderView alloc] initWithFrame:NSMakeRect(60, 125, 200, 26)] autorelease];
    textField = [[[NSTextField alloc] initWithFrame:NSMakeRect(60, 90, 200, 22)] autorelease];
    reasonField = [[[NSTextField alloc] initWithFrame:NSMakeRect(10, 65, 300, 22)] autorelease];
    secondReasonField = [[[NSTextField alloc] initWithFrame:NSMakeRect(10, 40, 300, 22)] autorelease];
    NSButton* button = [[[NSButton alloc] initWithFrame:NSMakeRect(60, 10, 80, 26)] autorelease];
    [reasonField setEditable:NO];
    [secondReasonField setEditable:NO];
    [button setKeyEquivalent:@"\r"];
    [button setTarget:self];
    [button setAction:@selector(act:)];

    NSView* const all[] = {first, second, textField, reasonField, secondReasonField, button};
    for (NSView* view : all)
        [[self contentView] addSubview:view];
    [first setReasonField:reasonField];
    [second setReasonField:secondReasonField];
    [first setNextKeyView:second];
    [second setNextKeyView:textField];
    [textField setNextKeyView:first];
}

- (void)empty {
    [self makeFirstResponder:nil];
    [self setContentView:[[[NSView alloc] initWithFrame:[[self contentView] frame]] autorelease]];
    actions = 0;
}

- (void)act:(id)__attribute__((unused))sender {
    ++actions;
}

- (BOOL)performKeyEquivalent:(NSEvent*)event {
    keyDowns += [event type] == NSKeyDown;
    return [super performKeyEquivalent:event];
}

- (void)sendEvent:(NSEvent*)event {
    [super sendEvent:event];
    keyUps += [event type] == NSKeyUp && !isModifierKey([event keyCode]);
    mouseDowns += [event type] == NSLeftMouseDown;
    mouseUps += [event type] == NSLeftMouseUp;
}

@end
