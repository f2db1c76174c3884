#pragma once

#include "appkit/services/Services.h"
#include "pane/QBSPPreferencePane.h"
#include "platform/PreferencePaneBase.h"
#include "sorter/QBSPSorterControl.h"

#include <memory>

namespace benchmarks {

/// The pane on the real adapters, without a view: its controls are those that are missing.
class BenchedPane {
public:
    BenchedPane();

    [[nodiscard]] qbsp::QBSPPreferencePane& pane() { return *pane_; }

    /// Sets the tick of the first row, as the user does.
    void tickFirst(bool hide);

private:
    struct Base : qbsp::platform::PreferencePaneBase {
        bool initWithBundle() override { return true; }

        void mainViewDidLoad() override {}

        void willSelect() override {}

        void willUnselect() override {}

        qbsp::platform::Window* mainViewWindow() override { return nullptr; }
    };

    /// Does all that it is asked to, at once.
    struct Registrar : qbsp::QBSPSorterControl {
        bool applicationIsRegistered(const std::optional<qbsp::platform::URL>&) override { return true; }

        bool registerApplication(const std::optional<qbsp::platform::URL>&) override { return true; }

        bool unregisterApplication(const std::optional<qbsp::platform::URL>&) override { return true; }

        void showAccountsSystemPreferencePane() override {}

        void showSorterApplication() override {}

        void closeSorterApplication() override {}
    };

    struct NothingRuns : qbsp::platform::RunningApplications {
        bool applicationIsRunning(qbsp::platform::BundleIdentifier) const override { return false; }
    };

    /// The look for a running Sorter takes as long as there are processes, whatever the list; it is measured
    /// by itself.
    struct Services : qbsp::appkit::AppKitServices {
        Services() : AppKitServices(nil, nil) {}

        NothingRuns runningApplications;
    };

    Services services_;
    Registrar registrar_;
    Base base_;
    std::shared_ptr<qbsp::QBSPPreferencePane> pane_;
};

} // namespace benchmarks
