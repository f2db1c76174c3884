#pragma once

#include "appkit/controls/Controls.h"
#include "appkit/controls/RecorderControl.h"
#include "appkit/view/ViewControls.h"

#include <optional>

namespace qbsp::appkit {

namespace detail {

template <class Control>
struct AdapterOf;

template <>
struct AdapterOf<platform::RecorderControl> {
    using type = AppKitRecorderControl;
};

template <>
struct AdapterOf<platform::Button> {
    using type = AppKitButton;
};

template <>
struct AdapterOf<platform::TextField> {
    using type = AppKitTextField;
};

template <>
struct AdapterOf<platform::TableView> {
    using type = AppKitTableView;
};

template <class Control>
using Adapter = std::optional<typename AdapterOf<Control>::type>;

} // namespace detail

/// The adapters for the controls of the pane's view.
class ControlAdapters {
public:
    explicit ControlAdapters(const ViewControls& views);

    /// Outlets to the adapters, valid as long as this object.
    [[nodiscard]] PaneControls outlets();

    /// The adapter of one of the view's recorders; null for any other object.
    [[nodiscard]] AppKitRecorderControl* recorderFor(id recorder);

    [[nodiscard]] AppKitTableView& hideAppsTable() { return *adapters_.hideAppsTable; }

private:
    ControlSet<detail::Adapter> adapters_;
};

} // namespace qbsp::appkit
