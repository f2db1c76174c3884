#import "appkit/recorder/QBSPRecorderView.h"

#include "appkit/bridge/Retained.h"
#include "appkit/bridge/Strings.h"
#include "appkit/recorder/KeyComboText.h"
#include "appkit/recorder/Keyboard.h"
#include "appkit/recorder/RecorderDrawing.h"
#include "appkit/recorder/RecorderLogic.h"
#include "appkit/recorder/RecorderTexts.h"
#include "appkit/recorder/SystemNotation.h"
#include "appkit/recorder/ViewListener.h"

#include <tuple>

using namespace qbsp::recorder;
using qbsp::appkit::nsString;
using qbsp::appkit::Retained;

static bool printsZ(NSEvent* event) {
    return [[[event charactersIgnoringModifiers] lowercaseString] isEqualToString:@"z"];
}

static bool isCommand(const KeyPress& press) {
    return (press.flags & modifiers::all) == modifiers::command && !press.isRepeat;
}

@interface QBSPRecorderView ()
- (void)watch:(SEL)selector name:(NSString*)name of:(NSWindow*)window;
- (BOOL)handleKeyDown:(NSEvent*)event;
- (BOOL)undoesAt:(NSEvent*)event;
- (BOOL)isOnClearButton:(NSEvent*)event;
- (NSString*)textIn:(const Notation&)notation empty:(NSString*)empty;
- (void)followModifiers:(NSEvent*)event;
@end

struct QBSPRecorderParts {
    explicit QBSPRecorderParts(QBSPRecorderView* view) : listener(view) {}

    ViewListener listener;
    RecorderLogic logic{listener};
    Retained<NSString*> accessibilityLabel;
    bool isClearPressed = false;

    /// Made when it is first needed: it may take a connection of its own to the system.
    [[nodiscard]] Keyboard& keyboard() {
        if (!madeKeyboard)
            madeKeyboard = makeKeyboard(listener);
        return *madeKeyboard;
    }

    void forgetHeldKeys() const {
        if (madeKeyboard)
            madeKeyboard->forgetHeldKeys();
    }

    [[nodiscard]] LayoutLabel layoutLabel() {
        return [this](VirtualKey key) {
            return keyboard().label(key);
        };
    }

private:
    std::unique_ptr<Keyboard> madeKeyboard;
};

@implementation QBSPRecorderView

- (id)initWithFrame:(NSRect)frame {
    if ((self = [super initWithFrame:frame]) != nil)
        _parts = std::make_unique<QBSPRecorderParts>(self);
    return self;
}

- (void)dealloc {
    [[NSNotificationCenter defaultCenter] removeObserver:self];
    [super dealloc];
}

#pragma mark - The combination

- (void)setKeyCode:(NSInteger)code flags:(NSUInteger)cocoaFlags {
    _parts->logic.setCombo({.flags = cocoaFlags, .code = code});
}

- (NSInteger)keyCode {
    return static_cast<NSInteger>(_parts->logic.combo().code);
}

- (NSUInteger)flags {
    return static_cast<NSUInteger>(_parts->logic.combo().flags);
}

- (BOOL)isListening {
    return _parts->logic.isArmed();
}

- (NSString*)stringValue {
    return [self textIn:shownNotation() empty:emptyText()];
}

- (NSString*)textIn:(const Notation&)notation empty:(NSString*)empty {
    const RecorderLogic& logic = _parts->logic;
    if (logic.heldModifiers() != 0)
        return nsString(heldText(logic.heldModifiers(), notation));
    if (logic.isArmed())
        return listeningText();
    return holdsKey(logic.combo()) ? nsString(comboText(logic.combo(), notation, _parts->layoutLabel()))
                                   : empty;
}

- (void)setDelegate:(id<QBSPRecorderViewDelegate>)delegate {
    _parts->listener.setDelegate(delegate);
}

- (id<QBSPRecorderViewDelegate>)delegate {
    return _parts->listener.delegate();
}

- (void)setReasonField:(NSTextField*)field {
    _parts->listener.reasons().setField(field);
}

- (NSTextField*)reasonField {
    return _parts->listener.reasons().field();
}

- (void)reviewCombination {
    _parts->logic.review();
}

#pragma mark - Focus

- (BOOL)acceptsFirstResponder {
    return YES;
}

- (BOOL)becomeFirstResponder {
    // From here on, keys may come, and making a keyboard may change how the system reports them.
    std::ignore = _parts->keyboard();
    [self setNeedsDisplay:YES];
    return YES;
}

- (BOOL)resignFirstResponder {
    [self stopListening];
    return YES;
}

- (void)viewWillMoveToWindow:(NSWindow*)window {
    [self stopListening];
    [self watch:@selector(windowDidResignKey:) name:NSWindowDidResignKeyNotification of:window];
    [self watch:@selector(windowDidBecomeKey:) name:NSWindowDidBecomeKeyNotification of:window];
    [super viewWillMoveToWindow:window];
}

- (void)watch:(SEL)selector name:(NSString*)name of:(NSWindow*)window {
    NSNotificationCenter* center = [NSNotificationCenter defaultCenter];
    [center removeObserver:self name:name object:nil];
    if (window != nil)
        [center addObserver:self selector:selector name:name object:window];
}

- (void)windowDidResignKey:(NSNotification*)__attribute__((unused))notification {
    [self stopListening];
}

- (void)windowDidBecomeKey:(NSNotification*)__attribute__((unused))notification {
    // The focus is shown again.
    [self setNeedsDisplay:YES];
}

- (void)stopListening {
    _parts->logic.disarm();
    _parts->forgetHeldKeys();
    [self setNeedsDisplay:YES];
}

#pragma mark - Keys

- (BOOL)performKeyEquivalent:(NSEvent*)event {
    // While the recorder listens, no other key equivalent may act on the key, which may be the one to record.
    if (![self isListening])
        return [self undoesAt:event] || [super performKeyEquivalent:event];
    [self handleKeyDown:event];
    return YES;
}

// The system's own Command, which need not be the key that a recorder takes for it.
- (BOOL)undoesAt:(NSEvent*)event {
    constexpr NSUInteger all = NSShiftKeyMask | NSControlKeyMask | NSAlternateKeyMask | NSCommandKeyMask;
    if ([[self window] firstResponder] != self || ([event modifierFlags] & all) != NSCommandKeyMask ||
        !printsZ(event))
        return NO;
    [self undo:nil];
    return YES;
}

- (void)undo:(id)__attribute__((unused))sender {
    _parts->logic.undo();
}

- (void)keyDown:(NSEvent*)event {
    if (![self handleKeyDown:event])
        [super keyDown:event];
}

- (void)keyUp:(NSEvent*)event {
    _parts->keyboard().observe(event);
    [self followModifiers:event];
    [super keyUp:event];
}

- (void)flagsChanged:(NSEvent*)event {
    _parts->keyboard().observe(event);
    [self followModifiers:event];
    [super flagsChanged:event];
}

- (void)followModifiers:(NSEvent*)event {
    _parts->logic.setHeldModifiers(_parts->keyboard().heldModifiers(event));
}

- (BOOL)handleKeyDown:(NSEvent*)event {
    const std::optional<KeyPress> press = _parts->keyboard().press(event);
    if (!press) {
        [self followModifiers:event];
        return YES;
    }
    if (![self isListening] && isCommand(*press) && printsZ(event)) {
        [self undo:nil];
        return YES;
    }
    const KeyOutcome outcome = _parts->logic.keyPressed(*press);
    if (outcome == KeyOutcome::nextView)
        [[self window] selectKeyViewFollowingView:self];
    else if (outcome == KeyOutcome::previousView)
        [[self window] selectKeyViewPrecedingView:self];
    return outcome != KeyOutcome::notHandled;
}

#pragma mark - Mouse

- (void)mouseDown:(NSEvent*)event {
    _parts->isClearPressed = [self isOnClearButton:event];
    if (_parts->isClearPressed)
        [self setNeedsDisplay:YES];
    else if ([[self window] makeFirstResponder:self])
        _parts->logic.arm();
}

- (void)mouseUp:(NSEvent*)event {
    const bool clears = _parts->isClearPressed && [self isOnClearButton:event];
    _parts->isClearPressed = false;
    [self setNeedsDisplay:YES];
    if (clears)
        _parts->logic.clear();
}

- (BOOL)isOnClearButton:(NSEvent*)event {
    const NSPoint point = [self convertPoint:[event locationInWindow] fromView:nil];
    return holdsKey(_parts->logic.combo()) && NSPointInRect(point, clearButtonRect([self bounds]));
}

#pragma mark - Drawing

- (void)drawRect:(NSRect)__attribute__((unused))rect {
    drawRecorder({.bounds = [self bounds],
                  .text = [self stringValue],
                  .isListening = _parts->logic.isArmed(),
                  .isEmpty = !holdsKey(_parts->logic.combo()),
                  .isClearPressed = _parts->isClearPressed});
}

#pragma mark - Accessibility

- (BOOL)isAccessibilityElement {
    return YES;
}

- (NSString*)accessibilityRole {
    return NSAccessibilityButtonRole;
}

- (NSString*)accessibilityRoleDescription {
    return roleText();
}

- (void)setAccessibilityLabel:(NSString*)label {
    _parts->accessibilityLabel = Retained<NSString*>([[label copy] autorelease]);
}

- (NSString*)accessibilityLabel {
    return _parts->accessibilityLabel.get();
}

- (id)accessibilityValue {
    return [self textIn:spokenNotation() empty:emptyValueText()];
}

- (NSString*)accessibilityHelp {
    return [self toolTip];
}

- (BOOL)accessibilityPerformPress {
    if ([[self window] makeFirstResponder:self])
        _parts->logic.arm();
    return [self isListening];
}

- (BOOL)accessibilityPerformDelete {
    _parts->logic.clear();
    return YES;
}

@end
