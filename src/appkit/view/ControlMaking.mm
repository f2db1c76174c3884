#import "appkit/view/ControlMaking.h"

#import "appkit/drawing/CheckBoxImages.h"
#include "appkit/drawing/Fonts.h"
#include "appkit/drawing/ScrollerImages.h"

namespace qbsp::appkit {

namespace {

void makeText(NSTextField* text, NSTextAlignment alignment, NSFont* font) {
    [text setEditable:NO];
    [text setSelectable:NO];
    [text setBezeled:NO];
    [text setBordered:NO];
    [text setDrawsBackground:NO];
    [text setAlignment:alignment];
    [text setFont:font];
    [[text cell] setWraps:YES];
}

QBSPButton* makeButton() {
    QBSPButton* button = [[[QBSPButton alloc] initWithFrame:NSZeroRect] autorelease];
    [button setTitle:@""];
    [button setFont:controlFont()];
    // The form draws the ring.
    [[button cell] setFocusRingType:NSFocusRingTypeNone];
    return button;
}

} // namespace

NSTextField* makeLabel(NSTextAlignment alignment) {
    NSTextField* label = [[[NSTextField alloc] initWithFrame:NSZeroRect] autorelease];
    makeText(label, alignment, controlFont());
    return label;
}

NSTextField* makeRemark() {
    NSTextField* remark = [[[NSTextField alloc] initWithFrame:NSZeroRect] autorelease];
    makeText(remark, NSLeftTextAlignment, remarkFont());
    return remark;
}

QBSPReasonField* makeReasonField() {
    QBSPReasonField* field = [[[QBSPReasonField alloc] initWithFrame:NSZeroRect] autorelease];
    makeText(field, NSLeftTextAlignment, controlFont());
    return field;
}

QBSPButton* makeCheckBox() {
    QBSPButton* checkBox = makeButton();
    makeCheckBox([checkBox cell], controlFont());
    return checkBox;
}

QBSPButton* makePushButton() {
    QBSPButton* button = makeButton();
    [button setButtonType:NSMomentaryPushInButton];
    [button setBezelStyle:NSRoundedBezelStyle];
    return button;
}

QBSPHideTable* makeHideTable() {
    return [[[QBSPHideTable alloc] initWithFrame:NSMakeRect(0, 0, 300, 100)] autorelease];
}

NSScrollView* makeScrollView(NSTableView* table) {
    nameScrollerImages();
    NSScrollView* scrollView = [[[NSScrollView alloc] initWithFrame:NSZeroRect] autorelease];
    [scrollView setHasVerticalScroller:YES];
    [scrollView setAutohidesScrollers:YES];
    [scrollView setBorderType:NSLineBorder];
    [scrollView setBackgroundColor:[NSColor textBackgroundColor]];
    [scrollView setDocumentView:table];
    return scrollView;
}

} // namespace qbsp::appkit
