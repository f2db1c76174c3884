#pragma once

#include "platform/Outlet.h"
#include "platform/URL.h"

#include <optional>

namespace qbsp {

/// The registrar of the ordinary host: it keeps the Sorter's login item, and starts and stops the Sorter of
/// the host's edition. The host owns it. A URL is missing where the pane does not know where the Sorter lies.
class QBSPSorterControl {
public:
    virtual ~QBSPSorterControl() = default;

    /// True when the application is among the user's login items.
    [[nodiscard]] virtual bool applicationIsRegistered(const std::optional<platform::URL>& application) = 0;

    /// Adds the application to the login items. True when it was added.
    [[nodiscard]] virtual bool registerApplication(const std::optional<platform::URL>& application) = 0;

    /// Takes the application out of the login items. True when it was removed.
    [[nodiscard]] virtual bool unregisterApplication(const std::optional<platform::URL>& application) = 0;

    /// Opens the system's accounts preferences.
    virtual void showAccountsSystemPreferencePane() = 0;

    /// Starts the Sorter.
    virtual void showSorterApplication() = 0;

    /// Stops the Sorter.
    virtual void closeSorterApplication() = 0;
};

/// What stands in for the registrar where the host offers none: it does nothing and returns false.
template <>
QBSPSorterControl& platform::nullObject();

} // namespace qbsp
