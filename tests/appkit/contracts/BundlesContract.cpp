#include "Contract.h"
#include "stages/HostStage.h"
#include "stages/RegistrarStage.h"

namespace qbsp::contracts {

namespace {

class BundlesContract : public Contract<HostStage> {
protected:
    [[nodiscard]] std::string text(std::string_view key, std::string_view fallback,
                                   std::optional<platform::TextTable> table = std::nullopt) const {
        return stage->bundles().localizedStringForKey({key}, {fallback}, table);
    }
};

class RegistrarBundleContract : public Contract<RegistrarStage> {};

} // namespace

TEST_P(BundlesContract, TheMainBundleIsTheHosts) {
    EXPECT_EQ(stage->bundles().mainBundleURL().path(), stage->trueMainBundlePath());
}

TEST_P(BundlesContract, ATextIsTakenFromTheDefaultTableOfThePanesBundle) {
    EXPECT_EQ(text("Greeting", ""), "Good day");
    EXPECT_EQ(text("Greeting", "another text"), "Good day");
}

TEST_P(BundlesContract, WhatTheTableLacksIsTheFallbackOrTheKey) {
    EXPECT_EQ(text("Farewell, größer", "So long"), "So long");
    EXPECT_EQ(text("Farewell, größer", ""), "Farewell, größer");
}

TEST_P(BundlesContract, ATableThatIsNotThereLacksEveryKey) {
    EXPECT_EQ(text("Greeting", "", platform::TextTable{"Missing"}), "Greeting");
    EXPECT_EQ(text("Greeting", "Hello", platform::TextTable{"Missing"}), "Hello");
}

TEST_P(RegistrarBundleContract, TheRegistrarsExecutableIsThatOfItsClasssBundle) {
    auto* const loader = stage->runtime().classFromString(stage->loaderWithRegistrar());
    ASSERT_NE(loader, nullptr);

    EXPECT_EQ(stage->bundles().executablePathOfBundleForClassOf(loader->defaultLoader()),
              stage->registrarExecutable());
}

TEST_P(RegistrarBundleContract, WithoutARegistrarItIsAnAbsolutePathOrNone) {
    const auto path = stage->bundles().executablePathOfBundleForClassOf(nullptr);

    EXPECT_TRUE(!path || path->starts_with('/')) << *path;
}

INSTANTIATE_TEST_SUITE_P(On, BundlesContract, onBothSides<HostStage>(), nameOfSide);
INSTANTIATE_TEST_SUITE_P(On, RegistrarBundleContract, onBothSides<RegistrarStage>(), nameOfSide);

} // namespace qbsp::contracts
