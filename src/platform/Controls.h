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

    virtual void setHidden(bool hidden) = 0;
};

class TextField : public View {
public:
    virtual void setStringValue(std::string_view text) = 0;
};

/// A check box's state. A platform may know others than these three.
enum class ButtonState : int { mixed = -1, off = 0, on = 1 };

/// A push button or a check box.
class Button : public View {
public:
    virtual void setTitle(std::string_view title) = 0;
    virtual void setEnabled(bool enabled) = 0;
    virtual void setState(ButtonState state) = 0;
    [[nodiscard]] virtual ButtonState state() const = 0;
};

class RecorderControl;

/// Judges what a recorder was offered, and hears what it took.
class RecorderDelegate {
public:
    virtual ~RecorderDelegate() = default;

    /// True when the combination is taken and must be refused. A reason that was asked for then says why, to
    /// the user; otherwise it is left alone.
    [[nodiscard]] virtual bool
    shortcutRecorderIsKeyCodeAndFlagsTakenReason(const RecorderControl& recorder, std::int64_t keyCode,
                                                 CocoaFlags flags, std::optional<std::string>* reason) = 0;

    /// The user recorded that combination, or cleared the recorder.
    virtual void shortcutRecorderKeyComboDidChange(const RecorderControl& recorder,
                                                   const KeyCombo& keyCombo) = 0;
};

/// A control that records a key combination.
class RecorderControl : public View {
public:
    /// Shows the combination; the delegate does not hear of it.
    virtual void setKeyCombo(const KeyCombo& keyCombo) = 0;

    /// From now on asks and tells that delegate, which it does not own.
    virtual void setDelegate(RecorderDelegate& delegate) = 0;
};

/// A column of a table.
class TableColumn {
public:
    virtual ~TableColumn() = default;

    [[nodiscard]] virtual std::string identifier() const = 0;

    /// Sets the text of the column's header.
    virtual void setHeaderStringValue(std::string_view text) = 0;
};

/// A table whose rows come from its data source.
class TableView {
public:
    virtual ~TableView() = default;

    /// The column of that identifier, the table's own; where there is none, one on which nothing has an
    /// effect.
    [[nodiscard]] virtual TableColumn& tableColumnWithIdentifier(ColumnIdentifier identifier) = 0;

    /// Asks the data source for all rows anew.
    virtual void reloadData() = 0;

    /// Selects that row alone; does nothing for a row that the table does not have.
    virtual void selectRow(std::size_t row) = 0;

    /// Scrolls until the row can be seen; does nothing for a row that the table does not have.
    virtual void scrollRowToVisible(std::size_t row) = 0;
};

} // namespace qbsp::platform
