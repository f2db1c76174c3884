#include "Contract.h"
#include "stages/PaneBaseStage.h"

namespace qbsp::contracts {

namespace {

class PreferencePaneBaseContract : public Contract<PaneBaseStage> {
protected:
    platform::PreferencePaneBase& base = stage->base();
};

class MainViewWindowContract : public PreferencePaneBaseContract {};

} // namespace

TEST_P(PreferencePaneBaseContract, ThePaneIsMadeUnlessThePlatformRefuses) {
    EXPECT_TRUE(base.initWithBundle());

    stage->letPlatformRefuse();

    EXPECT_FALSE(base.initWithBundle());
}

TEST_P(PreferencePaneBaseContract, EveryMessageReachesThePlatformOnceAndInOrder) {
    ASSERT_TRUE(base.initWithBundle());

    base.mainViewDidLoad();
    base.willSelect();
    base.willUnselect();

    EXPECT_EQ(stage->messages(),
              (std::vector<std::string>{"initWithBundle:", "mainViewDidLoad", "willSelect", "willUnselect"}));
}

TEST_P(PreferencePaneBaseContract, NoWindowShowsAMainViewThatIsNotThere) {
    ASSERT_TRUE(base.initWithBundle());

    EXPECT_EQ(base.mainViewWindow(), nullptr);
}

TEST_P(MainViewWindowContract, TheWindowIsThereWhileItShowsTheMainView) {
    ASSERT_TRUE(base.initWithBundle());

    stage->showMainView(true);
    EXPECT_NE(base.mainViewWindow(), nullptr);

    stage->showMainView(false);
    EXPECT_EQ(base.mainViewWindow(), nullptr);
}

INSTANTIATE_TEST_SUITE_P(On, PreferencePaneBaseContract, onBothSides<PaneBaseStage>(), nameOfSide);
// The simulation shows no windows.
INSTANTIATE_TEST_SUITE_P(On, MainViewWindowContract, onAppKit<PaneBaseStage>(), nameOfSide);

} // namespace qbsp::contracts
