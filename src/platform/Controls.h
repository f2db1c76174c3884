#pragma once

#include "platform/KeyCombo.h"
#include "platform/Name.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace qbsp::platform {

/// Anything visible in the pane's view.
class View {
public:
    virtual ~View() = default;

    /// Hides the control or shows it again.
    virtual void setHidden(bool hidden) = 0;
};

/// A label.
class TextField : public View {
public:
    /// Sets the text, which is UTF-8.
    virtual void setStringValue(std::string_view text) = 0;
};

/// A check box's state. A platform may have states besides these three.
enum class ButtonState : int { mixed = -1, off = 0, on = 1 };

/// A push button or a check box.
class Button : public View {
public:
    /// Sets the title, which is UTF-8.
    virtual void setTitle(std::string_view title) = 0;
    /// Makes the button take clicks or ignore them.
    virtual void setEnabled(bool enabled) = 0;
    /// Sets what a check box shows.
    virtual void setState(ButtonState state) = 0;
    /// What a check box shows.
    [[nodiscard]] virtual ButtonState state() const = 0;
};

class RecorderControl;

/// Decides which combinations a recorder may take, and is notified of the one it took.
class RecorderDelegate {
public:
    virtual ~RecorderDelegate() = default;

    /// True when the combination is in use, so that the recorder must refuse it. The reason, for the user, is
    /// then stored where `reason` points unless that is null; otherwise it is left alone.
    [[nodiscard]] virtual bool
    shortcutRecorderIsKeyCodeAndFlagsTakenReason(const RecorderControl& recorder, std::int64_t keyCode,
                                                 CocoaFlags flags, std::optional<std::string>* reason) = 0;

    /// The user recorded that combination, or cleared the recorder: then it is the empty one.
    virtual void shortcutRecorderKeyComboDidChange(const RecorderControl& recorder,
                                                   const KeyCombo& keyCombo) = 0;
};

/// A control that records a key combination.
class RecorderControl : public View {
public:
    /// Shows the combination. The delegate is not notified.
    virtual void setKeyCombo(const KeyCombo& keyCombo) = 0;

    /// Asks and notifies that delegate from now on, without owning it.
    virtual void setDelegate(RecorderDelegate& delegate) = 0;
};

/// A column of a table.
class TableColumn {
public:
    virtual ~TableColumn() = default;

    /// What the table knows the column by; empty for a column that is not there.
    [[nodiscard]] virtual std::string identifier() const = 0;

    /// Sets the text of the column's header.
    virtual void setHeaderStringValue(std::string_view text) = 0;
};

/// A table whose rows come from its data source.
class TableView {
public:
    virtual ~TableView() = default;

    /// The column of that identifier, owned by the table; where there is none, a column that ignores what it
    /// is sent.
    [[nodiscard]] virtual TableColumn& tableColumnWithIdentifier(ColumnIdentifier identifier) = 0;

    /// Reads all rows from the data source again.
    virtual void reloadData() = 0;

    /// Selects only that row; does nothing for a row that the table does not have.
    virtual void selectRow(std::size_t row) = 0;

    /// Scrolls until the row can be seen; does nothing for a row that the table does not have.
    virtual void scrollRowToVisible(std::size_t row) = 0;
};

} // namespace qbsp::platform
