#include "appkit/controls/Controls.h"

#include "appkit/bridge/Strings.h"
#include "platform/NullObjects.h"

#include <algorithm>

namespace qbsp::appkit {

#pragma mark - A column

std::string AppKitTableColumn::identifier() const {
    id identifier = [column_.get() identifier];
    return [identifier isKindOfClass:[NSString class]] ? utf8(identifier) : std::string();
}

void AppKitTableColumn::setHeaderStringValue(std::string_view text) {
    [[column_.get() headerCell] setStringValue:nsString(text)];
    [[[column_.get() tableView] headerView] setNeedsDisplay:YES];
}

#pragma mark - The table

AppKitTableView::AppKitTableView(NSTableView* table) : table_(table) {
    NSArray* columns = [table tableColumns];
    for (NSUInteger index = 0; index < [columns count]; ++index)
        columns_.emplace_back([columns objectAtIndex:index]);
}

platform::TableColumn& AppKitTableView::tableColumnWithIdentifier(platform::ColumnIdentifier identifier) {
    const auto found = std::ranges::find(columns_, identifier.text, &AppKitTableColumn::identifier);
    return found == columns_.end() ? platform::nullObject<platform::TableColumn>() : *found;
}

void AppKitTableView::reloadData() {
    [table_.get() reloadData];
}

void AppKitTableView::selectRow(std::size_t row) {
    if (hasRow(row))
        [table_.get() selectRowIndexes:[NSIndexSet indexSetWithIndex:row] byExtendingSelection:NO];
}

void AppKitTableView::scrollRowToVisible(std::size_t row) {
    if (hasRow(row))
        [table_.get() scrollRowToVisible:static_cast<NSInteger>(row)];
}

bool AppKitTableView::hasRow(std::size_t row) const {
    return row < static_cast<std::size_t>([table_.get() numberOfRows]);
}

void AppKitButton::setHidden(bool hidden) {
    [button_.get() setHidden:hidden ? YES : NO];
}

void AppKitButton::setTitle(std::string_view title) {
    [button_.get() setTitle:nsString(title)];
}

void AppKitButton::setEnabled(bool enabled) {
    [button_.get() setEnabled:enabled ? YES : NO];
}

void AppKitButton::setState(platform::ButtonState state) {
    [button_.get() setState:static_cast<NSInteger>(state)];
}

platform::ButtonState AppKitButton::state() const {
    return static_cast<platform::ButtonState>([button_.get() state]);
}

void AppKitTextField::setHidden(bool hidden) {
    [field_.get() setHidden:hidden ? YES : NO];
}

void AppKitTextField::setStringValue(std::string_view text) {
    [field_.get() setStringValue:nsString(text)];
}

} // namespace qbsp::appkit
