#pragma once

#include <cstdint>
#include <memory>
#include <string_view>

namespace qbsp::platform {

enum class AlertStyle : unsigned { critical = 2 };

inline constexpr std::int64_t NSAlertFirstButtonReturn = 1000;

/// A question to the user that the application waits for.
class Alert {
public:
    virtual ~Alert() = default;

    /// Sets how the alert looks; call this before runModal(), like the other setters.
    virtual void setAlertStyle(AlertStyle style) = 0;
    /// Sets the alert's headline.
    virtual void setMessageText(std::string_view text) = 0;
    /// Sets the text below the headline.
    virtual void setInformativeText(std::string_view text) = 0;

    /// Adds a button after those that are there; the first one is the default button.
    virtual void addButtonWithTitle(std::string_view title) = 0;

    /// Shows the alert and waits for the user. Returns NSAlertFirstButtonReturn for the first button, one
    /// more for each that follows.
    [[nodiscard]] virtual std::int64_t runModal() = 0;
};

/// Makes alerts.
class Alerts {
public:
    virtual ~Alerts() = default;

    /// A new alert without texts and buttons; never null.
    [[nodiscard]] virtual std::unique_ptr<Alert> makeAlert() = 0;
};

} // namespace qbsp::platform
