#pragma once

#include "platform/URL.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace qbsp::platform {

class Window;

inline constexpr std::int64_t NSOKButton = 1;

/// The system's panel for choosing a file.
class OpenPanel {
public:
    virtual ~OpenPanel() = default;

    /// Whether the user may choose folders.
    virtual void setCanChooseDirectories(bool canChoose) = 0;
    /// Whether the user may choose several files.
    virtual void setAllowsMultipleSelection(bool allows) = 0;

    /// The extensions of the files that can be chosen.
    virtual void setAllowedFileTypes(const std::vector<std::string>& extensions) = 0;

    /// The folder that the panel starts in.
    virtual void setDirectoryURL(const URL& folder) = 0;

    /// Shows the panel as a sheet of the window, or as the platform does without one, and returns. The
    /// handler is called once, after this has returned, on the main thread, with NSOKButton or another
    /// result; it and what it holds are kept until then.
    virtual void beginSheetModalForWindow(Window* window,
                                          std::function<void(std::int64_t result)> completionHandler) = 0;

    /// What was chosen; none before anything was.
    [[nodiscard]] virtual std::optional<URL> chosenURL() const = 0;
};

/// Makes open panels.
class OpenPanels {
public:
    virtual ~OpenPanels() = default;

    /// A panel; never null.
    [[nodiscard]] virtual std::shared_ptr<OpenPanel> openPanel() = 0;
};

} // namespace qbsp::platform
