#import "UserInput.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace quarrybook {

namespace {

struct Key {
    std::int64_t mac;
    unsigned short x11;
    unichar character;
};

// X keycodes of a PC keyboard, as the evdev driver numbers them.
constexpr auto keys = std::to_array<Key>({
    {0, 38, 'a'},       {1, 39, 's'},       {2, 40, 'd'},       {3, 41, 'f'},      {4, 43, 'h'},
    {5, 42, 'g'},       {6, 52, 'z'},       {7, 53, 'x'},       {8, 54, 'c'},      {9, 55, 'v'},
    {11, 56, 'b'},      {12, 24, 'q'},      {13, 25, 'w'},      {14, 26, 'e'},     {15, 27, 'r'},
    {16, 29, 'y'},      {17, 28, 't'},      {18, 10, '1'},      {19, 11, '2'},     {20, 12, '3'},
    {21, 13, '4'},      {22, 15, '6'},      {23, 14, '5'},      {24, 21, '='},     {25, 18, '9'},
    {26, 16, '7'},      {27, 20, '-'},      {28, 17, '8'},      {29, 19, '0'},     {30, 35, ']'},
    {31, 32, 'o'},      {32, 30, 'u'},      {33, 34, '['},      {34, 31, 'i'},     {35, 33, 'p'},
    {36, 36, 0x0d},     {37, 46, 'l'},      {38, 44, 'j'},      {39, 48, '\''},    {40, 45, 'k'},
    {41, 47, ';'},      {42, 51, '\\'},     {43, 59, ','},      {44, 61, '/'},     {45, 57, 'n'},
    {46, 58, 'm'},      {47, 60, '.'},      {48, 23, 0x09},     {49, 65, ' '},     {50, 49, '`'},
    {51, 22, 0x7f},     {53, 9, 0x1b},      {96, 71, 0xf708},   {97, 72, 0xf709},  {98, 73, 0xf70a},
    {99, 69, 0xf706},   {100, 74, 0xf70b},  {101, 75, 0xf70c},  {103, 95, 0xf70e}, {109, 76, 0xf70d},
    {111, 96, 0xf70f},  {118, 70, 0xf707},  {120, 68, 0xf705},  {122, 67, 0xf704}, {123, 113, 0xf702},
    {124, 114, 0xf703}, {125, 116, 0xf701}, {126, 111, 0xf700},
});

// By default, AppKit here reports Alt as Command and Super as Help.
std::uint64_t eventFlags(std::uint64_t flags) {
    std::uint64_t reported = flags & (NSShiftKeyMask | NSControlKeyMask);
    if ((flags & NSAlternateKeyMask) != 0)
        reported |= NSCommandKeyMask;
    if ((flags & NSCommandKeyMask) != 0)
        reported |= NSHelpKeyMask;
    return reported;
}

NSEvent* mouseEvent(NSEventType type, NSView* view, NSPoint point) {
    return [NSEvent mouseEventWithType:type
                              location:[view convertPoint:point toView:nil]
                         modifierFlags:0
                             timestamp:[NSDate timeIntervalSinceReferenceDate]
                          windowNumber:[[view window] windowNumber]
                               context:[[view window] graphicsContext]
                           eventNumber:0
                            clickCount:1
                              pressure:type == NSLeftMouseDown ? 1 : 0];
}

NSEvent* keyEvent(NSEventType type, NSWindow* window, const Key& key, std::uint64_t flags) {
    NSString* characters = [NSString stringWithCharacters:&key.character length:1];
    return [NSEvent keyEventWithType:type
                            location:NSZeroPoint
                       modifierFlags:static_cast<NSUInteger>(eventFlags(flags))
                           timestamp:[NSDate timeIntervalSinceReferenceDate]
                        windowNumber:[window windowNumber]
                             context:[window graphicsContext]
                          characters:characters
         charactersIgnoringModifiers:characters
                           isARepeat:NO
                             keyCode:key.x11];
}

// A modal loop notices that it should end only at its next event, which the timer and the posted event bring.
void wakeModalLoop(NSWindow* modalWindow) {
    NSTimer* timer = [NSTimer timerWithTimeInterval:0.05
                                             target:modalWindow
                                           selector:@selector(displayIfNeeded)
                                           userInfo:nil
                                            repeats:NO];
    [[NSRunLoop currentRunLoop] addTimer:timer forMode:NSModalPanelRunLoopMode];
    [NSApp postEvent:[NSEvent otherEventWithType:NSApplicationDefined
                                        location:NSZeroPoint
                                   modifierFlags:0
                                       timestamp:0
                                    windowNumber:[modalWindow windowNumber]
                                         context:nil
                                         subtype:0
                                           data1:0
                                           data2:0]
             atStart:NO];
}

} // namespace

void click(NSView* view, NSPoint point) {
    // The release waits in the queue, where the loop that tracks the press looks for it.
    [NSApp postEvent:mouseEvent(NSLeftMouseUp, view, point) atStart:NO];
    [NSApp sendEvent:mouseEvent(NSLeftMouseDown, view, point)];
}

bool pressKey(NSWindow* window, std::int64_t macKeyCode, std::uint64_t flags) {
    const Key* key = std::ranges::find(keys, macKeyCode, &Key::mac);
    if (key == std::end(keys))
        return false;
    [NSApp sendEvent:keyEvent(NSKeyDown, window, *key, flags)];
    [NSApp sendEvent:keyEvent(NSKeyUp, window, *key, 0)];
    return true;
}

void pressButton(NSButton* button) {
    NSWindow* modalWindow = [NSApp modalWindow];
    [button performClick:nil];
    if (modalWindow != nil)
        wakeModalLoop(modalWindow);
}

} // namespace quarrybook
