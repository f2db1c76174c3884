#pragma once

#include <filesystem>

namespace xdg {

/// Where the user's applications keep their configuration: $XDG_CONFIG_HOME, else ~/.config.
[[nodiscard]] std::filesystem::path configHome();

/// Where they keep their data: $XDG_DATA_HOME, else ~/.local/share.
[[nodiscard]] std::filesystem::path dataHome();

/// Where they keep their logs: $XDG_STATE_HOME, else ~/.local/state.
[[nodiscard]] std::filesystem::path stateHome();

} // namespace xdg
