#include "Contract.h"
#include "stages/RegistrarStage.h"

namespace qbsp::contracts {

using Messages = std::vector<std::string>;

namespace {

class QBSPSorterControlContract : public Contract<RegistrarStage> {
protected:
    void SetUp() override {
        auto* const loader = stage->runtime().classFromString(stage->loaderWithRegistrar());
        ASSERT_NE(loader, nullptr);
        registrar = loader->defaultLoader();
        ASSERT_NE(registrar, nullptr);
    }

    QBSPSorterControl* registrar = nullptr;
    const std::optional<platform::URL> application =
        platform::URL::fileURLWithPath("/Applications/Größe 1.app");
};

} // namespace

TEST_P(QBSPSorterControlContract, AnApplicationIsALoginItemFromAddingToRemoving) {
    EXPECT_FALSE(registrar->applicationIsRegistered(application));

    EXPECT_TRUE(registrar->registerApplication(application));
    EXPECT_TRUE(registrar->applicationIsRegistered(application));

    EXPECT_TRUE(registrar->unregisterApplication(application));
    EXPECT_FALSE(registrar->applicationIsRegistered(application));
}

TEST_P(QBSPSorterControlContract, ARefusalIsReturnedAndChangesNothing) {
    EXPECT_TRUE(registrar->registerApplication(application));
    stage->letRegistrarRefuse();

    EXPECT_FALSE(registrar->unregisterApplication(application));
    EXPECT_TRUE(registrar->applicationIsRegistered(application));
    EXPECT_FALSE(registrar->registerApplication(application));
}

TEST_P(QBSPSorterControlContract, TheRegistrarReceivesTheApplicationOrNil) {
    std::ignore = registrar->applicationIsRegistered(application);
    std::ignore = registrar->registerApplication(application);
    std::ignore = registrar->unregisterApplication(std::nullopt);

    EXPECT_EQ(stage->messages(),
              (Messages{"applicationIsRegistered: /Applications/Größe 1.app",
                        "registerApplication: /Applications/Größe 1.app", "unregisterApplication: null"}));
}

TEST_P(QBSPSorterControlContract, TheOtherMessagesReachTheRegistrarInOrder) {
    registrar->showAccountsSystemPreferencePane();
    registrar->showSorterApplication();
    registrar->closeSorterApplication();

    EXPECT_EQ(stage->messages(), (Messages{"showAccountsSystemPreferencePane", "showSorterApplication",
                                           "closeSorterApplication"}));
}

INSTANTIATE_TEST_SUITE_P(On, QBSPSorterControlContract, onBothSides<RegistrarStage>(), nameOfSide);

} // namespace qbsp::contracts
