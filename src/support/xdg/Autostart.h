#pragma once

#include "xdg/DesktopEntry.h"

#include <filesystem>
#include <optional>
#include <string>
#include <system_error>
#include <utility>

namespace xdg {

/// The user's login items: one entry for each application, named by the application's identifier.
class Autostart {
public:
    /// The login items that the user's desktop honours.
    [[nodiscard]] static Autostart ofUser();

    explicit Autostart(std::filesystem::path folder) : folder_(std::move(folder)) {}

    /// The program that starts at login under that identifier; none when there is no entry, or one that the
    /// user switched off.
    [[nodiscard]] std::optional<std::string> program(const std::string& identifier) const;

    /// Starts the application at login; an entry that the user switched off is switched on again. An error
    /// when the entry could not be written; what was there before is then untouched.
    [[nodiscard]] std::error_code add(const std::string& identifier, const DesktopEntry& application) const;

    /// Starts it no longer. No error when there is no entry afterwards, also when there was none.
    [[nodiscard]] std::error_code remove(const std::string& identifier) const;

    /// Where the entry of that identifier lies, or would lie.
    [[nodiscard]] std::filesystem::path file(const std::string& identifier) const;

private:
    std::filesystem::path folder_;
};

} // namespace xdg
