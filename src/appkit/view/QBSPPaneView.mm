#import "appkit/view/QBSPPaneView.h"

#import "appkit/view/ControlMaking.h"
#import "appkit/view/TextMeasuring.h"

#include <array>
#include <cstddef>

using qbsp::appkit::FormLayout;
using qbsp::appkit::FormRow;
using qbsp::appkit::Stretch;

static const NSSize initialSize = {580, 560};
static const NSSize recorderSize = {220, 26};
static const CGFloat narrowestFlagColumn = 70;
static const CGFloat headerPadding = 16;
static const CGFloat gap = 10;
static const CGFloat groupGap = 18;

static bool hasTitle(NSView* control) {
    return [control isKindOfClass:[NSButton class]] && [[static_cast<NSButton*>(control) title] length] > 0;
}

@interface QBSPPaneView ()
- (void)makeLabels;
- (void)makeControls;
- (QBSPRecorderView*)makeRecorder;
- (void)makeForm;
- (void)addControls;
- (void)chainControls;
- (void)layOutForm;
- (void)fitColumns;
@end

@implementation QBSPPaneView

- (id)initWithFrame:(NSRect)frame {
    if ((self = [super initWithFrame:NSMakeRect(0, 0, initialSize.width, initialSize.height)]) != nil) {
        [self setAutoresizingMask:NSViewWidthSizable | NSViewHeightSizable];
        [self makeLabels];
        [self makeControls];
        [self makeForm];
        [self addControls];
        [self chainControls];
    }
    return self;
}

- (void)dealloc {
    delete form;
    [super dealloc];
}

#pragma mark - Making the controls

- (void)makeLabels {
    descriptionLabel = qbsp::appkit::makeLabel(NSLeftTextAlignment);
    availabilityLabel = qbsp::appkit::makeLabel(NSRightTextAlignment);
    visibilityLabel = qbsp::appkit::makeLabel(NSRightTextAlignment);
    takeNoteLabel = qbsp::appkit::makeLabel(NSRightTextAlignment);
    copySelectionLabel = qbsp::appkit::makeLabel(NSRightTextAlignment);
    hideAppLabel = qbsp::appkit::makeLabel(NSRightTextAlignment);
    attentionLabel = qbsp::appkit::makeRemark();
    reasonField = qbsp::appkit::makeRemark();
}

- (void)makeControls {
    showAtLoginCheckbox = qbsp::appkit::makeCheckBox();
    toggleLaunchButton = qbsp::appkit::makePushButton();
    visibilityButton = qbsp::appkit::makeCheckBox();
    noteHotKeyRecorder = [self makeRecorder];
    clipHotKeyRecorder = [self makeRecorder];
    hideAppsTable = qbsp::appkit::makeHideTable();
    hideAppsScrollView = qbsp::appkit::makeScrollView(hideAppsTable);
    addButton = qbsp::appkit::makePushButton();
    resetFullscreenSettingsButton = qbsp::appkit::makePushButton();
}

- (QBSPRecorderView*)makeRecorder {
    const NSRect frame = NSMakeRect(0, 0, recorderSize.width, recorderSize.height);
    QBSPRecorderView* recorder = [[[QBSPRecorderView alloc] initWithFrame:frame] autorelease];
    [recorder setReasonField:reasonField];
    return recorder;
}

- (void)makeForm {
    form = new FormLayout;
    form->setIntroduction(descriptionLabel);
    form->addRow({availabilityLabel, {showAtLoginCheckbox}, groupGap});
    form->addRow({nil, {toggleLaunchButton, attentionLabel}, gap});
    form->addRow({visibilityLabel, {visibilityButton}, groupGap});
    form->addRow({takeNoteLabel, {noteHotKeyRecorder}, groupGap});
    form->addRow({copySelectionLabel, {clipHotKeyRecorder}, gap});
    // A reason comes and goes, and nothing moves: there is always room for the longest.
    form->addRow({nil, {reasonField}, 4, Stretch::width, qbsp::appkit::heightOfLines(reasonField, 2)});
    form->addRow({hideAppLabel, {hideAppsScrollView}, 4, Stretch::widthAndHeight});
    form->addRow({nil, {addButton, resetFullscreenSettingsButton}, gap});
}

- (void)addControls {
    [self addSubview:descriptionLabel];
    for (const FormRow& row : form->rows()) {
        if (row.label != nil)
            [self addSubview:row.label];
        for (NSView* control : row.controls)
            [self addSubview:control];
    }
}

- (void)chainControls {
    const std::array<NSView*, 8> order{showAtLoginCheckbox, toggleLaunchButton,           visibilityButton,
                                       noteHotKeyRecorder,  clipHotKeyRecorder,           hideAppsTable,
                                       addButton,           resetFullscreenSettingsButton};
    for (std::size_t index = 0; index < order.size(); ++index)
        [order[index] setNextKeyView:order[(index + 1) % order.size()]];
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
    qbsp::appkit::setAccessibilityLabel(hideAppsTable, [hideAppLabel stringValue]);
    [self layOutForm];
}

- (void)layOutForm {
    form->layOut([self bounds].size);
    [self fitColumns];
    [self setNeedsDisplay:YES];
}

// The flags take the room of their title, and the names what is left. A column may take more room than its
// width.
- (void)fitColumns {
    NSTableColumn* names = [hideAppsTable tableColumnWithIdentifier:@"1"];
    NSTableColumn* flags = [hideAppsTable tableColumnWithIdentifier:@"2"];
    const CGFloat title = [[flags headerCell] cellSize].width + headerPadding;
    [flags setMaxWidth:MAX(narrowestFlagColumn, title)];
    [flags setMinWidth:[flags maxWidth]];
    [flags setWidth:[flags maxWidth]];
    const CGFloat spacing = NSMaxX([hideAppsTable rectOfColumn:1]) - [names width] - [flags width];
    const CGFloat room = [hideAppsScrollView contentSize].width - spacing - [flags width];
    [names setWidth:MAX([flags width], room)];
}

#pragma mark - The controls

- (QBSPRecorderView*)clipHotKeyRecorder {
    return clipHotKeyRecorder;
}

- (QBSPRecorderView*)noteHotKeyRecorder {
    return noteHotKeyRecorder;
}

- (NSButton*)showAtLoginCheckbox {
    return showAtLoginCheckbox;
}

- (NSButton*)toggleLaunchButton {
    return toggleLaunchButton;
}

- (NSButton*)visibilityButton {
    return visibilityButton;
}

- (NSTextField*)availabilityLabel {
    return availabilityLabel;
}

- (NSTextField*)visibilityLabel {
    return visibilityLabel;
}

- (NSTextField*)descriptionLabel {
    return descriptionLabel;
}

- (NSTextField*)takeNoteLabel {
    return takeNoteLabel;
}

- (NSTextField*)copySelectionLabel {
    return copySelectionLabel;
}

- (NSTextField*)attentionLabel {
    return attentionLabel;
}

- (NSButton*)addButton {
    return addButton;
}

- (NSButton*)resetFullscreenSettingsButton {
    return resetFullscreenSettingsButton;
}

- (NSTableView*)hideAppsTable {
    return hideAppsTable;
}

- (NSTextField*)hideAppLabel {
    return hideAppLabel;
}

- (NSView*)firstControl {
    return [showAtLoginCheckbox isHidden] ? toggleLaunchButton : showAtLoginCheckbox;
}

- (NSView*)lastControl {
    return resetFullscreenSettingsButton;
}

@end
