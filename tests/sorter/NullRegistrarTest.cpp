#include "sorter/QBSPSorterControl.h"

#include <gtest/gtest.h>

namespace qbsp {

TEST(NullRegistrar, ReturnsFalseFromEveryQuestion) {
    const platform::Outlet<QBSPSorterControl> registrar;
    const auto sorter = platform::URL::fileURLWithPath("/Sorter.app");
    registrar->showSorterApplication();
    registrar->closeSorterApplication();
    registrar->showAccountsSystemPreferencePane();

    EXPECT_FALSE(registrar->applicationIsRegistered(sorter));
    EXPECT_FALSE(registrar->registerApplication(sorter));
    EXPECT_FALSE(registrar->unregisterApplication(sorter));
}

} // namespace qbsp
