#pragma once

#include "appkit/bridge/Retained.h"
#include "platform/Controls.h"

#import <AppKit/AppKit.h>
#include <vector>

namespace qbsp::appkit {

class AppKitTableColumn final : public platform::TableColumn {
public:
    explicit AppKitTableColumn(NSTableColumn* column) : column_(column) {}

    [[nodiscard]] std::string identifier() const override;
    void setHeaderStringValue(std::string_view text) override;

private:
    Retained<NSTableColumn*> column_;
};

/// A table whose set of columns does not change.
class AppKitTableView final : public platform::TableView {
public:
    explicit AppKitTableView(NSTableView* table);

    [[nodiscard]] platform::TableColumn&
    tableColumnWithIdentifier(platform::ColumnIdentifier identifier) override;

    void reloadData() override;
    void selectRow(std::size_t row) override;
    void scrollRowToVisible(std::size_t row) override;

private:
    [[nodiscard]] bool hasRow(std::size_t row) const;

    Retained<NSTableView*> table_;
    std::vector<AppKitTableColumn> columns_;
};

/// A push button or a check box.
class AppKitButton final : public platform::Button {
public:
    explicit AppKitButton(NSButton* button) : button_(button) {}

    void setHidden(bool hidden) override;
    void setTitle(std::string_view title) override;
    void setEnabled(bool enabled) override;
    void setState(platform::ButtonState state) override;
    [[nodiscard]] platform::ButtonState state() const override;

private:
    Retained<NSButton*> button_;
};

class AppKitTextField final : public platform::TextField {
public:
    explicit AppKitTextField(NSTextField* field) : field_(field) {}

    void setHidden(bool hidden) override;
    void setStringValue(std::string_view text) override;

private:
    Retained<NSTextField*> field_;
};

} // namespace qbsp::appkit
