#include "simulated/PaneSession.h"

namespace qbsp::simulated {

void PaneSession::initialize() {
    initialized_ = true;
    QBSPPreferencePane::initialize(platform_.userDefaults);
}

bool PaneSession::create() {
    if (!initialized_)
        initialize();
    SimulatedPaneBase& base = bases_.emplace_back(platform_.world, platform_.transcript);
    pane_ = QBSPPreferencePane::initWithBundle(platform_.services(), base);
    return hasPane();
}

void PaneSession::loadView() {
    view_ = &views_.emplace_back(*pane_, platform_.world, platform_.transcript);
    pane_->mainViewDidLoad();
}

void PaneSession::dealloc() {
    pane_ = nullptr;
    view_ = nullptr;
}

} // namespace qbsp::simulated
