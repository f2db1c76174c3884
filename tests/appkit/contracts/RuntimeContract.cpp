#include "Contract.h"
#include "stages/RegistrarStage.h"

namespace qbsp::contracts {

namespace {

class RuntimeContract : public Contract<RegistrarStage> {
protected:
    platform::Runtime& runtime = stage->runtime();
};

class LoaderClassContract : public RuntimeContract {};

} // namespace

TEST_P(RuntimeContract, AClassThatIsInTheProcessIsFoundByItsName) {
    EXPECT_NE(runtime.classFromString(stage->loaderWithRegistrar()), nullptr);
    EXPECT_NE(runtime.classFromString(stage->loaderWithoutRegistrar()), nullptr);
}

TEST_P(RuntimeContract, AClassThatIsNotThereIsNotFound) {
    EXPECT_EQ(runtime.classFromString(stage->noLoader()), nullptr);
    EXPECT_EQ(runtime.classFromString({""}), nullptr);
}

TEST_P(LoaderClassContract, ItHandsOutTheRegistrarWhichStaysTheHosts) {
    auto* const loader = runtime.classFromString(stage->loaderWithRegistrar());
    ASSERT_NE(loader, nullptr);

    auto* const registrar = loader->defaultLoader();

    ASSERT_NE(registrar, nullptr);
    EXPECT_EQ(loader->defaultLoader(), registrar);
    EXPECT_FALSE(registrar->applicationIsRegistered(std::nullopt));
}

TEST_P(LoaderClassContract, ItHandsOutNothingWhenItOffersNone) {
    auto* const loader = runtime.classFromString(stage->loaderWithoutRegistrar());
    ASSERT_NE(loader, nullptr);

    EXPECT_EQ(loader->defaultLoader(), nullptr);
}

INSTANTIATE_TEST_SUITE_P(On, RuntimeContract, onBothSides<RegistrarStage>(), nameOfSide);
INSTANTIATE_TEST_SUITE_P(On, LoaderClassContract, onBothSides<RegistrarStage>(), nameOfSide);

namespace {

class LoaderlessClassContract : public RuntimeContract {};

} // namespace

TEST_P(LoaderlessClassContract, AClassThatDoesNotKnowTheMessageOffersNone) {
    auto* const other = runtime.classFromString({"NSObject"});
    ASSERT_NE(other, nullptr);

    EXPECT_EQ(other->defaultLoader(), nullptr);
}

INSTANTIATE_TEST_SUITE_P(On, LoaderlessClassContract, onAppKit<RegistrarStage>(), nameOfSide);

} // namespace qbsp::contracts
