#pragma once

#include "simulated/SimulatedPlatform.h"
#include "simulated/SimulatedView.h"

#include <deque>
#include <memory>

namespace qbsp::simulated {

/// A host on the simulated platform: it makes panes, one at a time, and loads their views. A delayed message
/// or an open sheet that a released pane waits for still reaches it.
class PaneSession {
public:
    /// The platform must outlive the session.
    explicit PaneSession(SimulatedPlatform& platform) : platform_(platform) {}

    /// Class start-up; it may be sent again.
    void initialize();

    /// Makes a pane, after class start-up unless that was sent before. False when there is none afterwards.
    [[nodiscard]] bool create();

    /// Connects fresh controls and sends mainViewDidLoad. There must be a pane without a view.
    void loadView();

    /// Releases the pane.
    void dealloc();

    [[nodiscard]] bool hasPane() const { return pane_ != nullptr; }

    [[nodiscard]] bool hasView() const { return view_ != nullptr; }

    /// The pane, which there must be.
    [[nodiscard]] QBSPPreferencePane& pane() const { return *pane_; }

    /// The pane's view; null before it was loaded.
    [[nodiscard]] SimulatedView* view() const { return view_; }

    [[nodiscard]] SimulatedPlatform& platform() const { return platform_; }

private:
    SimulatedPlatform& platform_;
    bool initialized_ = false;
    std::deque<SimulatedPaneBase> bases_; ///< of every pane so far: one that waits for something lives on
    std::deque<SimulatedView> views_;     ///< likewise
    std::shared_ptr<QBSPPreferencePane> pane_;
    SimulatedView* view_ = nullptr;
};

} // namespace qbsp::simulated
