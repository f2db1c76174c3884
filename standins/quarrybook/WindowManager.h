#pragma once

namespace quarrybook {

/// True when a window manager runs on the display that this program's windows are on.
[[nodiscard]] bool hasWindowManager();

} // namespace quarrybook
