#pragma once

#import "appkit/recorder/QBSPRecorderView.h"
#import "appkit/view/QBSPButton.h"
#import "appkit/view/QBSPHideTable.h"
#include "pane/PaneControls.h"

#import <AppKit/AppKit.h>

namespace qbsp::appkit {

namespace detail {

template <class Control>
struct ViewOf;

template <>
struct ViewOf<platform::RecorderControl> {
    using type = QBSPRecorderView*;
};

template <>
struct ViewOf<platform::Button> {
    using type = QBSPButton*;
};

template <>
struct ViewOf<platform::TextField> {
    using type = NSTextField*;
};

template <>
struct ViewOf<platform::TableView> {
    using type = QBSPHideTable*;
};

template <class Control>
using View = typename ViewOf<Control>::type;

} // namespace detail

/// The views of the pane's controls, which their superviews retain.
using ViewControls = ControlSet<detail::View>;

} // namespace qbsp::appkit
