#include "sorter/QBSPSorterControl.h"

namespace qbsp {

namespace {

class NullSorterControl final : public QBSPSorterControl {
    bool applicationIsRegistered(const std::optional<platform::URL>&) override { return false; }

    bool registerApplication(const std::optional<platform::URL>&) override { return false; }

    bool unregisterApplication(const std::optional<platform::URL>&) override { return false; }

    void showAccountsSystemPreferencePane() override {}

    void showSorterApplication() override {}

    void closeSorterApplication() override {}
};

} // namespace

template <>
QBSPSorterControl& platform::nullObject() {
    static NullSorterControl registrar;
    return registrar;
}

} // namespace qbsp
