#pragma once

#include "platform/Controls.h"
#include "platform/DistributedNotificationCenter.h"
#include "platform/Log.h"
#include "platform/NullObjects.h"
#include "sorter/QBSPSorterControl.h"

#include <functional>

namespace qbsp {

/// Calls back when a notification is posted.
class WatchedCenter final : public platform::DistributedNotificationCenter {
public:
    void postNotificationName(platform::NotificationName name, const std::string&,
                              const std::optional<platform::Dictionary>&,
                              platform::NotificationOptions) override {
        posted(name.text);
    }

    std::function<void(std::string_view name)> posted;
};

/// Calls back at every message to the table.
class WatchedTable final : public platform::TableView {
public:
    platform::TableColumn& tableColumnWithIdentifier(platform::ColumnIdentifier) override {
        asked();
        return platform::nullObject<platform::TableColumn>();
    }

    void reloadData() override { asked(); }

    void selectRow(std::size_t) override { asked(); }

    void scrollRowToVisible(std::size_t) override { asked(); }

    std::function<void()> asked = [] {
    };
};

/// Calls back when the button gets its title.
class WatchedButton final : public platform::Button {
public:
    void setHidden(bool) override {}

    void setTitle(std::string_view) override { titled(); }

    void setEnabled(bool) override {}

    void setState(platform::ButtonState) override {}

    platform::ButtonState state() const override { return platform::ButtonState::off; }

    std::function<void()> titled;
};

/// Calls back when a line is logged.
class WatchedLog final : public platform::Log {
public:
    void log(std::string_view) override { logged(); }

    std::function<void()> logged;
};

/// Calls back when it is asked to stop the Sorter.
class WatchedRegistrar final : public QBSPSorterControl {
public:
    bool applicationIsRegistered(const std::optional<platform::URL>&) override { return false; }

    bool registerApplication(const std::optional<platform::URL>&) override { return false; }

    bool unregisterApplication(const std::optional<platform::URL>&) override { return false; }

    void showAccountsSystemPreferencePane() override {}

    void showSorterApplication() override {}

    void closeSorterApplication() override { closed(); }

    std::function<void()> closed;
};

} // namespace qbsp
