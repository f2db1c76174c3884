#import "appkit/view/QBSPPaneView.h"

#include "appkit/bridge/Strings.h"
#include "appkit/drawing/Fonts.h"
#import "appkit/view/ControlMaking.h"
#include "appkit/view/FormLayout.h"
#import "appkit/view/KeyViews.h"
#import "appkit/view/QBSPFormView.h"
#import "appkit/view/ViewTexts.h"

#include <vector>

using qbsp::appkit::FormLayout;
using qbsp::appkit::FormRow;
using qbsp::appkit::Stretch;
using qbsp::appkit::ViewControls;

static const NSSize initialSize = {580, 560};
static const CGFloat recorderWidthInLines = 15;
static const CGFloat recorderHeightPadding = 12;
static const CGFloat minimumListHeightInRows = 4;
static const CGFloat gap = 10;
static const CGFloat groupGap = 18;
static const CGFloat reasonGap = 4;

static NSString* const addButtonName = @"addButton";

static NSString* nsName(const char* name) {
    return [NSString stringWithUTF8String:name];
}

// How most controls of each kind are made.

static void make(NSTextField*& label) {
    label = qbsp::appkit::makeLabel(NSRightTextAlignment);
}

static void make(QBSPButton*& button) {
    button = qbsp::appkit::makePushButton();
}

static void make(QBSPHideTable*& table) {
    table = qbsp::appkit::makeHideTable();
}

static void make(QBSPRecorderView*& recorder) {
    const CGFloat line = qbsp::appkit::lineHeight(qbsp::appkit::controlFont());
    const NSRect frame = NSMakeRect(0, 0, recorderWidthInLines * line, line + recorderHeightPadding);
    recorder = [[[QBSPRecorderView alloc] initWithFrame:frame] autorelease];
}

static void chooseFontOf(NSTextField* label) {
    [label setFont:qbsp::appkit::fontForText([label stringValue], qbsp::appkit::controlFont())];
}

@interface QBSPPaneView ()
- (void)chooseFonts;
- (void)makeControls;
- (QBSPReasonField*)makeReasonFieldOf:(QBSPRecorderView*)recorder;
- (void)makeForm;
- (void)addControls;
- (void)chainControls;
- (void)setToolTips;
- (CGFloat)minimumListHeight;
- (void)reviewHotKeys;
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
        [self setToolTips];
    }
    return self;
}

- (void)dealloc {
    [[NSNotificationCenter defaultCenter] removeObserver:self];
    // A recorder that is deallocated clears the reason that it showed.
    [noteReasonField setLayout:nil];
    [clipReasonField setLayout:nil];
    [super dealloc];
}

#pragma mark - Making the controls

- (void)makeControls {
    qbsp::forEachControl([](const char*, auto& control) { make(control); }, controls);
    controls.descriptionLabel = qbsp::appkit::makeLabel(NSLeftTextAlignment);
    controls.attentionLabel = qbsp::appkit::makeRemark();
    controls.showAtLoginCheckbox = qbsp::appkit::makeCheckBox();
    controls.visibilityButton = qbsp::appkit::makeCheckBox();
    noteReasonField = [self makeReasonFieldOf:controls.noteHotKeyRecorder];
    clipReasonField = [self makeReasonFieldOf:controls.clipHotKeyRecorder];
    hideAppsScrollView = qbsp::appkit::makeScrollView(controls.hideAppsTable);
    addButton = qbsp::appkit::makePushButton();
}

- (QBSPReasonField*)makeReasonFieldOf:(QBSPRecorderView*)recorder {
    QBSPReasonField* field = qbsp::appkit::makeReasonField();
    [field setLayout:self];
    [recorder setReasonField:field];
    [[NSNotificationCenter defaultCenter] addObserver:self
                                             selector:@selector(reviewHotKeys)
                                                 name:QBSPRecorderDidChangeNotification
                                               object:recorder];
    return field;
}

- (void)makeForm {
    const ViewControls& c = controls;
    form = std::make_unique<FormLayout>();
    form->setIntroduction(c.descriptionLabel);
    form->addRow({c.availabilityLabel, {c.showAtLoginCheckbox}, groupGap});
    form->addRow({nil, {c.toggleLaunchButton, c.attentionLabel}, gap});
    form->addRow({c.visibilityLabel, {c.visibilityButton}, groupGap});
    form->addRow({c.takeNoteLabel, {c.noteHotKeyRecorder}, groupGap});
    form->addRow({nil, {noteReasonField}, reasonGap, Stretch::width});
    form->addRow({c.copySelectionLabel, {c.clipHotKeyRecorder}, gap});
    form->addRow({nil, {clipReasonField}, reasonGap, Stretch::width});
    form->addRow(
        {c.hideAppLabel, {hideAppsScrollView}, groupGap, Stretch::widthAndHeight, [self minimumListHeight]});
    form->addRow({nil, {addButton, c.resetFullscreenSettingsButton}, gap});
}

- (CGFloat)minimumListHeight {
    return NSHeight([[controls.hideAppsTable headerView] frame]) +
           minimumListHeightInRows * [controls.hideAppsTable rowHeight];
}

- (void)addControls {
    formView = [[[QBSPFormView alloc] initWithFrame:[self bounds]] autorelease];
    [formView addSubview:controls.descriptionLabel];
    for (const FormRow& row : form->rows()) {
        if (row.label != nil)
            [formView addSubview:row.label];
        for (NSView* control : row.controls)
            [formView addSubview:control];
    }
    formScrollView = [[[NSScrollView alloc] initWithFrame:[self bounds]] autorelease];
    [formScrollView setDrawsBackground:NO];
    [formScrollView setDocumentView:formView];
    [self addSubview:formScrollView];
}

// The ends are the host's to connect.
- (void)chainControls {
    const std::vector<NSView*> order = [self controlsInTabOrder];
    for (std::size_t index = 1; index < order.size(); ++index)
        [order[index - 1] setNextKeyView:order[index]];
}

- (void)setToolTips {
    [controls.showAtLoginCheckbox setToolTip:qbsp::appkit::loginTip()];
    [controls.toggleLaunchButton setToolTip:qbsp::appkit::launchTip()];
    [controls.visibilityButton setToolTip:qbsp::appkit::visibilityTip()];
    [controls.noteHotKeyRecorder setToolTip:qbsp::appkit::recorderTip()];
    [controls.clipHotKeyRecorder setToolTip:qbsp::appkit::recorderTip()];
    [controls.hideAppsTable setHelp:qbsp::appkit::listTip()];
    [controls.hideAppLabel setToolTip:qbsp::appkit::listTip()];
    [addButton setToolTip:qbsp::appkit::addTip()];
    [controls.resetFullscreenSettingsButton setToolTip:qbsp::appkit::resetTip()];
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

- (void)viewDidMoveToWindow {
    [super viewDidMoveToWindow];
    [self layOutForm];
}

- (void)contentsDidChange {
    [self chooseFonts];
    for (const FormRow& row : form->rows())
        if (row.label != nil && row.stretch == Stretch::none)
            [static_cast<id>(row.controls.front()) setAccessibilityLabel:[row.label stringValue]];
    [controls.hideAppsTable setAccessibilityLabel:[controls.hideAppLabel stringValue]];
    [self reviewHotKeys];
    [self layOutForm];
}

// When one of two equal hot keys changes, the other is no longer in use elsewhere.
- (void)reviewHotKeys {
    for (QBSPRecorderView* recorder : {controls.noteHotKeyRecorder, controls.clipHotKeyRecorder})
        if (![recorder isHidden])
            [recorder reviewCombination];
}

// The buttons and the fields for reasons choose theirs with each text.
- (void)chooseFonts {
    qbsp::forEachControl(
        [](const char*, NSView* control) {
            if ([control isKindOfClass:[NSTextField class]])
                chooseFontOf(static_cast<NSTextField*>(control));
        },
        controls);
    [controls.hideAppsTable chooseHeaderFonts];
}

// What nobody sees yet is laid out once, when it can be seen.
- (void)layOutForm {
    if ([self window] == nil)
        return;
    const NSSize room = [self bounds].size;
    const NSSize beside = [NSScrollView contentSizeForFrameSize:room
                                          hasHorizontalScroller:NO
                                            hasVerticalScroller:YES
                                                     borderType:NSNoBorder];
    NSSize size = form->minimumSize(room.width);
    const BOOL isTooHigh = size.height > room.height;
    if (isTooHigh)
        size = form->minimumSize(beside.width);
    size.height = MAX(size.height, room.height);
    // Scrollers that hide themselves can show and hide each other for ever.
    [formScrollView setHasVerticalScroller:isTooHigh];
    [formScrollView setHasHorizontalScroller:size.width > room.width];
    [formScrollView setFrame:[self bounds]];
    [formView setFrameSize:size];
    form->layOut(size);
    [controls.hideAppsTable fitColumns];
    [self setNeedsDisplay:YES];
}

#pragma mark - The mouse

// A click beside the controls, which does not move the focus.
- (void)mouseDown:(NSEvent*)event {
    [controls.noteHotKeyRecorder stopListening];
    [controls.clipHotKeyRecorder stopListening];
    [super mouseDown:event];
}

#pragma mark - The controls

- (const ViewControls&)controls {
    return controls;
}

- (QBSPButton*)addButton {
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

#pragma mark - In the host

- (void)takeFocus {
    if ([[self lastControl] nextKeyView] == nil)
        qbsp::appkit::connectKeyViews(self, [self firstControl], [self lastControl]);
    id responder = [[self window] firstResponder];
    if (![responder isKindOfClass:[NSView class]] || ![responder isDescendantOf:self])
        [[self window] makeFirstResponder:[self firstControl]];
}

@end
