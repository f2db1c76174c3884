#pragma once

#include "appkit/Retained.h"
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

/// A table whose columns stay as they are.
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

} // namespace qbsp::appkit
