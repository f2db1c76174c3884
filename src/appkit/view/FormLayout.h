#pragma once

#import <AppKit/AppKit.h>

#include <vector>

namespace qbsp::appkit {

/// How a row takes up the room there is.
enum class Stretch { none, width, widthAndHeight };

/// A row of a form: a label, which may be missing, and controls side by side; one that stretches has one
/// control. A row whose controls are all hidden takes no room.
struct FormRow {
    NSTextField* label;
    std::vector<NSView*> controls;
    CGFloat gapAbove;
    Stretch stretch = Stretch::none;
    CGFloat leastHeight = 0;
};

/// Lays a form out, from the top of a flipped view: labels end at one line, controls begin at another. The
/// views belong to the form's view.
class FormLayout {
  public:
    void addRow(FormRow row);

    /// A text above the form, wrapped to its whole width.
    void setIntroduction(NSTextField* introduction) { introduction_ = introduction; }

    /// Gives every view its place in a form of that size.
    void layOut(NSSize size) const;

    [[nodiscard]] const std::vector<FormRow>& rows() const { return rows_; }

  private:
    struct Columns {
        CGFloat labelWidth;
        CGFloat controlX;
        CGFloat controlWidth;
    };

    [[nodiscard]] Columns columns(CGFloat width) const;
    [[nodiscard]] CGFloat labelWidth() const;
    [[nodiscard]] CGFloat controlWidth() const;
    [[nodiscard]] CGFloat introductionHeight(CGFloat width) const;
    [[nodiscard]] static CGFloat flowWidth(const FormRow& row, const Columns& columns);
    [[nodiscard]] static CGFloat heightOf(const FormRow& row, const Columns& columns);
    [[nodiscard]] CGFloat heightLeft(NSSize size, const Columns& columns) const;
    static void place(const FormRow& row, const Columns& columns, CGFloat y, CGFloat height);

    NSTextField* introduction_ = nil;
    std::vector<FormRow> rows_;
};

} // namespace qbsp::appkit
