#import "appkit/view/FormLayout.h"

#include "appkit/drawing/Fonts.h"
#import "appkit/view/Alignment.h"
#import "appkit/view/ControlFlow.h"
#import "appkit/view/TextMeasuring.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace qbsp::appkit {

namespace {

constexpr CGFloat margin = 20;
constexpr CGFloat columnGap = 10;
constexpr CGFloat gapBelowStackedLabel = 4;

bool isVisible(const FormRow& row) {
    return std::ranges::any_of(row.controls, takesSpace);
}

CGFloat widestControl(const FormRow& row) {
    CGFloat widest = 0;
    for (NSView* control : row.controls)
        if (takesSpace(control) && ![control isKindOfClass:[NSTextField class]])
            widest = std::max(widest, naturalWidth(control));
    return widest;
}

/// The first line of what the label stands beside: a table's is as high as the label's own.
CGFloat firstLineHeight(const FormRow& row) {
    return row.stretch == Stretch::none ? ControlFlow(row.controls, 0).firstLineHeight()
                                        : lineHeight([row.label font]);
}

} // namespace

void FormLayout::addRow(FormRow row) {
    rows_.push_back(std::move(row));
}

NSSize FormLayout::minimumSize(CGFloat width) const {
    CGFloat widest = 0;
    for (const FormRow& row : rows_)
        if (isVisible(row))
            widest = std::max(widest, widestControl(row));
    const CGFloat wideEnough = std::max(width, widest + 2 * margin);
    CGFloat height = heightWithoutStretching(wideEnough, columns(wideEnough));
    for (const FormRow& row : rows_)
        if (row.stretch == Stretch::widthAndHeight)
            height += row.minimumHeight;
    return NSMakeSize(wideEnough, height);
}

void FormLayout::layOut(NSSize size) const {
    const Columns formColumns = columns(size.width);
    CGFloat y = margin + introductionHeight(size.width);
    [introduction_ setFrame:NSMakeRect(margin, margin, size.width - 2 * margin, y - margin)];
    for (const FormRow& row : rows_) {
        if (!isVisible(row))
            continue;
        CGFloat height = heightOf(row, formColumns);
        if (row.stretch == Stretch::widthAndHeight)
            height +=
                std::max(row.minimumHeight, size.height - heightWithoutStretching(size.width, formColumns));
        place(row, formColumns, y + row.gapAbove, height);
        y += row.gapAbove + height;
    }
}

// Labels can wrap between words and most controls cannot wrap, so the controls get their width first.
FormLayout::Columns FormLayout::columns(CGFloat width) const {
    const CGFloat room = width - 2 * margin - columnGap;
    const CGFloat wholeLabels = labelWidth();
    const CGFloat labels = std::min(wholeLabels, room - controlWidth());
    if (labels < wholeLabels && labels < widestWordOfLabels())
        return {.areStacked = true,
                .labelWidth = width - 2 * margin,
                .controlX = margin,
                .controlWidth = width - 2 * margin};
    return {.areStacked = false,
            .labelWidth = labels,
            .controlX = margin + labels + columnGap,
            .controlWidth = room - labels};
}

CGFloat FormLayout::controlWidth() const {
    CGFloat widest = 0;
    for (const FormRow& row : rows_)
        if (row.label != nil)
            widest = std::max(widest, widestControl(row));
    return widest;
}

CGFloat FormLayout::labelWidth() const {
    CGFloat widest = 0;
    for (const FormRow& row : rows_)
        if (row.label != nil && isVisible(row))
            widest = std::max(widest, sizeOfWrappedText(row.label, 10000).width);
    return widest;
}

CGFloat FormLayout::widestWordOfLabels() const {
    CGFloat widest = 0;
    for (const FormRow& row : rows_)
        if (row.label != nil && isVisible(row))
            widest = std::max(widest, widthOfWidestWord(row.label));
    return widest;
}

CGFloat FormLayout::introductionHeight(CGFloat width) const {
    return introduction_ == nil ? 0 : sizeOfWrappedText(introduction_, width - 2 * margin).height;
}

// A control that is too wide for its column extends to the left if there is no label.
CGFloat FormLayout::flowWidth(const FormRow& row, const Columns& columns) {
    const bool mayExtendLeft = row.label == nil && row.stretch == Stretch::none;
    return mayExtendLeft ? std::max(columns.controlWidth, widestControl(row)) : columns.controlWidth;
}

CGFloat FormLayout::labelHeight(const FormRow& row, const Columns& columns) {
    return row.label == nil ? 0 : sizeOfWrappedText(row.label, columns.labelWidth).height;
}

CGFloat FormLayout::controlTop(const FormRow& row, const Columns& columns) {
    const bool isBelow = columns.areStacked && row.label != nil;
    return isBelow ? labelHeight(row, columns) + gapBelowStackedLabel : 0;
}

/// For a row that stretches in height, without what it gets of the height that is left.
CGFloat FormLayout::heightOf(const FormRow& row, const Columns& columns) {
    const CGFloat top = controlTop(row, columns);
    if (row.stretch == Stretch::widthAndHeight)
        return top;
    const CGFloat controls = ControlFlow(row.controls, flowWidth(row, columns)).height();
    return std::max(top + controls, columns.areStacked ? 0 : labelHeight(row, columns));
}

CGFloat FormLayout::heightWithoutStretching(CGFloat width, const Columns& columns) const {
    CGFloat height = 2 * margin + introductionHeight(width);
    for (const FormRow& row : rows_)
        if (isVisible(row))
            height += row.gapAbove + heightOf(row, columns);
    return height;
}

/// The label's first line and the controls' have the same middle, and so the same baseline.
void FormLayout::placeLabel(const FormRow& row, const Columns& columns, CGFloat y) {
    const CGFloat above =
        columns.areStacked ? 0 : std::floor((firstLineHeight(row) - lineHeight([row.label font])) / 2);
    [row.label setAlignment:columns.areStacked ? NSLeftTextAlignment : NSRightTextAlignment];
    [row.label setFrame:NSMakeRect(margin, y + above, columns.labelWidth, labelHeight(row, columns))];
}

void FormLayout::place(const FormRow& row, const Columns& columns, CGFloat y, CGFloat height) {
    if (row.label != nil)
        placeLabel(row, columns, y);
    const CGFloat top = controlTop(row, columns);
    if (row.stretch != Stretch::none) {
        setVisiblePart(row.controls.front(),
                       NSMakeRect(columns.controlX, y + top, columns.controlWidth, height - top));
        return;
    }
    const CGFloat width = flowWidth(row, columns);
    ControlFlow(row.controls, width)
        .place(NSMakePoint(columns.controlX + columns.controlWidth - width, y + top));
}

} // namespace qbsp::appkit
