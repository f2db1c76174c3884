#import "appkit/view/QBSPPaneView.h"

#include "appkit/bridge/Strings.h"
#import "appkit/view/ControlMaking.h"
#import "appkit/view/TextMeasuring.h"

#include <vector>

using qbsp::appkit::FormLayout;
using qbsp::appkit::FormRow;
using qbsp::appkit::Stretch;
using qbsp::appkit::ViewControls;

static const NSSize initialSize = {580, 560};
static const NSSize recorderSize = {220, 26};
static const CGFloat minimumFlagColumnWidth = 70;
static const CGFloat headerPadding = 16;
static const CGFloat gap = 10;
static const CGFloat groupGap = 18;

static bool hasTitle(NSView* control) {
    return [control isKindOfClass:[NSButton class]] && [[static_cast<NSButton*>(control) title] length] > 0;
}

static NSString* const addButtonName = @"addButton";

static NSString* nsName(const char* name) {
    return [NSString stringWithUTF8String:name];
}

// How most controls of each kind are made.

static void make(NSTextField*& label) {
    label = qbsp::appkit::makeLabel(NSRightTextAlignment);
}

static void make(NSButton*& button) {
    button = qbsp::appkit::makePushButton();
}

static void make(NSTableView*& table) {
    table = qbsp::appkit::makeHideTable();
}

static void make(QBSPRecorderView*& recorder) {
    const NSRect frame = NSMakeRect(0, 0, recorderSize.width, recorderSize.height);
    recorder = [[[QBSPRecorderView alloc] initWithFrame:frame] autorelease];
}

@interface QBSPPaneView ()
- (void)makeControls;
- (void)makeForm;
- (void)addControls;
- (void)chainControls;
- (void)layOutForm;
- (void)fitColumns;
- (std::vector<NSView*>)controlsInTabOrder;
@end

@implementation QBSPPaneView

- (id)initWithFrame:(NSRect)frame {
    if ((self = [super initWithFrame:NSMakeRect(0, 0, initialSize.width, initialSize.height)]) != nil) {
        [self setAutoresizingMask:NSViewWidthSizable | NSViewHeightSizable];
        [self makeControls];
        [self makeForm];
        [self addControls];
        [self chainControls];
    }
    return self;
}

#pragma mark - Making the controls

- (void)makeControls {
    qbsp::forEachControl([](const char*, auto& control) { make(control); }, controls);
    controls.descriptionLabel = qbsp::appkit::makeLabel(NSLeftTextAlignment);
    controls.attentionLabel = qbsp::appkit::makeRemark();
    controls.showAtLoginCheckbox = qbsp::appkit::makeCheckBox();
    controls.visibilityButton = qbsp::appkit::makeCheckBox();
    reasonField = qbsp::appkit::makeRemark();
    [controls.noteHotKeyRecorder setReasonField:reasonField];
    [controls.clipHotKeyRecorder setReasonField:reasonField];
    hideAppsScrollView = qbsp::appkit::makeScrollView(controls.hideAppsTable);
    addButton = qbsp::appkit::makePushButton();
}

- (void)makeForm {
    const ViewControls& c = controls;
    form = std::make_unique<FormLayout>();
    form->setIntroduction(c.descriptionLabel);
    form->addRow({c.availabilityLabel, {c.showAtLoginCheckbox}, groupGap});
    form->addRow({nil, {c.toggleLaunchButton, c.attentionLabel}, gap});
    form->addRow({c.visibilityLabel, {c.visibilityButton}, groupGap});
    form->addRow({c.takeNoteLabel, {c.noteHotKeyRecorder}, groupGap});
    form->addRow({c.copySelectionLabel, {c.clipHotKeyRecorder}, gap});
    // Reserves room for the longest reason, so that nothing moves when one appears or disappears.
    form->addRow({nil, {reasonField}, 4, Stretch::width, qbsp::appkit::heightOfLines(reasonField, 2)});
    form->addRow({c.hideAppLabel, {hideAppsScrollView}, 4, Stretch::widthAndHeight});
    form->addRow({nil, {addButton, c.resetFullscreenSettingsButton}, gap});
}

- (void)addControls {
    [self addSubview:controls.descriptionLabel];
    for (const FormRow& row : form->rows()) {
        if (row.label != nil)
            [self addSubview:row.label];
        for (NSView* control : row.controls)
            [self addSubview:control];
    }
}

- (void)chainControls {
    const std::vector<NSView*> order = [self controlsInTabOrder];
    for (std::size_t index = 0; index < order.size(); ++index)
        [order[index] setNextKeyView:order[(index + 1) % order.size()]];
}

// From top to bottom, as they are laid out. A text field takes no keys, and in the list the table does.
- (std::vector<NSView*>)controlsInTabOrder {
    std::vector<NSView*> order;
    for (const FormRow& row : form->rows())
        for (NSView* control : row.controls)
            if (control == hideAppsScrollView)
                order.push_back(controls.hideAppsTable);
            else if (![control isKindOfClass:[NSTextField class]])
                order.push_back(control);
    return order;
}

#pragma mark - Layout

- (BOOL)isFlipped {
    return YES;
}

- (void)resizeSubviewsWithOldSize:(NSSize)oldSize {
    [self layOutForm];
}

- (void)contentsDidChange {
    for (const FormRow& row : form->rows())
        if (row.label != nil && !hasTitle(row.controls.front()))
            qbsp::appkit::setAccessibilityLabel(row.controls.front(), [row.label stringValue]);
    qbsp::appkit::setAccessibilityLabel(controls.hideAppsTable, [controls.hideAppLabel stringValue]);
    [self layOutForm];
}

- (void)layOutForm {
    form->layOut([self bounds].size);
    [self fitColumns];
    [self setNeedsDisplay:YES];
}

// The column of flags is as wide as its title, and the column of names gets the rest. A column may take up
// more space than its width.
- (void)fitColumns {
    NSTableColumn* names =
        [controls.hideAppsTable tableColumnWithIdentifier:qbsp::appkit::nsString(qbsp::nameColumn.text)];
    NSTableColumn* flags =
        [controls.hideAppsTable tableColumnWithIdentifier:qbsp::appkit::nsString(qbsp::flagColumn.text)];
    const CGFloat title = [[flags headerCell] cellSize].width + headerPadding;
    [flags setMaxWidth:MAX(minimumFlagColumnWidth, title)];
    [flags setMinWidth:[flags maxWidth]];
    [flags setWidth:[flags maxWidth]];
    const CGFloat spacing = NSMaxX([controls.hideAppsTable rectOfColumn:1]) - [names width] - [flags width];
    const CGFloat room = [hideAppsScrollView contentSize].width - spacing - [flags width];
    [names setWidth:MAX([flags width], room)];
}

#pragma mark - The controls

- (const ViewControls&)controls {
    return controls;
}

- (NSButton*)addButton {
    return addButton;
}

- (NSArray*)controlNames {
    NSMutableArray* names = [NSMutableArray array];
    qbsp::forEachControl([names](const char* name) { [names addObject:nsName(name)]; });
    return names;
}

- (NSView*)controlNamed:(NSString*)name {
    NSView* found = [name isEqualToString:addButtonName] ? addButton : nil;
    qbsp::forEachControl(
        [&](const char* each, NSView* control) {
            if ([name isEqualToString:nsName(each)])
                found = control;
        },
        controls);
    return found;
}

- (id)valueForUndefinedKey:(NSString*)key {
    NSView* control = [self controlNamed:key];
    return control == nil ? [super valueForUndefinedKey:key] : control;
}

- (NSView*)firstControl {
    return [controls.showAtLoginCheckbox isHidden] ? controls.toggleLaunchButton
                                                   : controls.showAtLoginCheckbox;
}

- (NSView*)lastControl {
    return controls.resetFullscreenSettingsButton;
}

@end
