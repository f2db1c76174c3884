#pragma once

#import <AppKit/AppKit.h>

#include <vector>

namespace qbsp::appkit {

/// How a row uses the space that is left.
enum class Stretch { none, width, widthAndHeight };

/// A row of a form: an optional label, and controls side by side. A row that stretches has exactly one
/// control. A row whose controls are all hidden or empty takes no space.
struct FormRow {
    NSTextField* label;
    std::vector<NSView*> controls;
    CGFloat gapAbove;
    Stretch stretch = Stretch::none;
    CGFloat minimumHeight = 0;
};

/// Lays out a form from the top of a flipped view, with labels aligned right in one column and controls in
/// the next; where there is no room for that, with each label above its controls. The form's view owns the
/// views.
class FormLayout {
public:
    void addRow(FormRow row);

    /// A text above the form, wrapped to its whole width.
    void setIntroduction(NSTextField* introduction) { introduction_ = introduction; }

    /// What the form needs to show everything when it is as wide as that or, if that is not enough, wider.
    [[nodiscard]] NSSize minimumSize(CGFloat width) const;

    /// Sets the frames of all views for a form of that size.
    void layOut(NSSize size) const;

    [[nodiscard]] const std::vector<FormRow>& rows() const { return rows_; }

private:
    struct Columns {
        bool areStacked;
        CGFloat labelWidth;
        CGFloat controlX;
        CGFloat controlWidth;
    };

    [[nodiscard]] Columns columns(CGFloat width) const;
    [[nodiscard]] CGFloat labelWidth() const;
    [[nodiscard]] CGFloat widestWordOfLabels() const;
    [[nodiscard]] CGFloat controlWidth() const;
    [[nodiscard]] CGFloat introductionHeight(CGFloat width) const;
    [[nodiscard]] static CGFloat flowWidth(const FormRow& row, const Columns& columns);
    [[nodiscard]] static CGFloat labelHeight(const FormRow& row, const Columns& columns);
    [[nodiscard]] static CGFloat controlTop(const FormRow& row, const Columns& columns);
    [[nodiscard]] static CGFloat heightOf(const FormRow& row, const Columns& columns);
    [[nodiscard]] CGFloat heightWithoutStretching(CGFloat width, const Columns& columns) const;
    static void placeLabel(const FormRow& row, const Columns& columns, CGFloat y);
    static void place(const FormRow& row, const Columns& columns, CGFloat y, CGFloat height);

    NSTextField* introduction_ = nil;
    std::vector<FormRow> rows_;
};

} // namespace qbsp::appkit
