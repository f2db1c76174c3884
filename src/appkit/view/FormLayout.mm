#import "appkit/view/FormLayout.h"

#import "appkit/view/ControlFlow.h"
#import "appkit/view/TextMeasuring.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace qbsp::appkit {

namespace {

constexpr CGFloat margin = 20;
constexpr CGFloat columnGap = 10;
constexpr CGFloat minimumStretchedHeight = 84;
constexpr CGFloat minimumLabelShare = 0.25;

bool isVisible(const FormRow& row) {
    return std::ranges::any_of(row.controls, [](NSView* control) { return ![control isHidden]; });
}

CGFloat widestControl(const FormRow& row) {
    CGFloat widest = 0;
    for (NSView* control : row.controls)
        if (![control isHidden])
            widest = std::max(widest, naturalWidth(control));
    return widest;
}

} // namespace

void FormLayout::addRow(FormRow row) {
    rows_.push_back(std::move(row));
}

void FormLayout::layOut(NSSize size) const {
    const Columns formColumns = columns(size.width);
    const CGFloat introductionWidth = size.width - 2 * margin;
    const CGFloat stretchedHeight = std::max(minimumStretchedHeight, heightLeft(size, formColumns));
    CGFloat y = margin + introductionHeight(size.width);
    [introduction_ setFrame:NSMakeRect(margin, margin, introductionWidth, y - margin)];
    for (const FormRow& row : rows_) {
        if (!isVisible(row))
            continue;
        const bool stretches = row.stretch == Stretch::widthAndHeight;
        const CGFloat height = stretches ? stretchedHeight : heightOf(row, formColumns);
        place(row, formColumns, y + row.gapAbove, height);
        y += row.gapAbove + height;
    }
}

// Labels can wrap and most controls cannot, so the controls get their width first.
FormLayout::Columns FormLayout::columns(CGFloat width) const {
    const CGFloat room = width - 2 * margin - columnGap;
    const CGFloat leftByControls = std::max(room - controlWidth(), std::floor(room * minimumLabelShare));
    const CGFloat labels = std::min(labelWidth(), leftByControls);
    return {.labelWidth = labels, .controlX = margin + labels + columnGap, .controlWidth = room - labels};
}

CGFloat FormLayout::controlWidth() const {
    CGFloat widest = 0;
    for (const FormRow& row : rows_)
        if (row.label != nil && row.stretch == Stretch::none)
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

CGFloat FormLayout::introductionHeight(CGFloat width) const {
    return introduction_ == nil ? 0 : sizeOfWrappedText(introduction_, width - 2 * margin).height;
}

// A control that is too wide for its column extends to the left if there is no label.
CGFloat FormLayout::flowWidth(const FormRow& row, const Columns& columns) {
    const bool mayExtendLeft = row.label == nil && row.stretch == Stretch::none;
    return mayExtendLeft ? std::max(columns.controlWidth, widestControl(row)) : columns.controlWidth;
}

CGFloat FormLayout::heightOf(const FormRow& row, const Columns& columns) {
    const CGFloat label = row.label == nil ? 0 : sizeOfWrappedText(row.label, columns.labelWidth).height;
    return std::max({row.minimumHeight, label, ControlFlow(row.controls, flowWidth(row, columns)).height()});
}

CGFloat FormLayout::heightLeft(NSSize size, const Columns& columns) const {
    CGFloat left = size.height - 2 * margin - introductionHeight(size.width);
    for (const FormRow& row : rows_)
        if (isVisible(row))
            left -= row.gapAbove + (row.stretch == Stretch::widthAndHeight ? 0 : heightOf(row, columns));
    return left;
}

void FormLayout::place(const FormRow& row, const Columns& columns, CGFloat y, CGFloat height) {
    const auto centred = [&](CGFloat own) {
        return row.stretch == Stretch::widthAndHeight ? y : y + std::floor((height - own) / 2);
    };
    if (row.label != nil) {
        const CGFloat own = sizeOfWrappedText(row.label, columns.labelWidth).height;
        [row.label setFrame:NSMakeRect(margin, centred(own), columns.labelWidth, own)];
    }
    if (row.stretch != Stretch::none) {
        [row.controls.front() setFrame:NSMakeRect(columns.controlX, y, columns.controlWidth, height)];
        return;
    }
    const CGFloat width = flowWidth(row, columns);
    const ControlFlow flow(row.controls, width);
    flow.place(NSMakePoint(columns.controlX + columns.controlWidth - width, centred(flow.height())));
}

} // namespace qbsp::appkit
