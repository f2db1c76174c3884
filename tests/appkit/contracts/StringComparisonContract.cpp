#include "Contract.h"
#include "stages/HostStage.h"

#include <string_view>
#include <utility>

namespace qbsp::contracts {

namespace {

class StringComparisonContract : public Contract<HostStage> {
protected:
    platform::StringComparison& strings = stage->strings();
};

} // namespace

TEST_P(StringComparisonContract, TextsThatDifferOnlyInCaseAreEqual) {
    constexpr std::pair<std::string_view, std::string_view> pairs[] = {
        {"", ""},   {"Mail", "Mail"}, {"Mail", "mAIL"}, {"ÄRGER", "ärger"}, {"É", "é"}, {"Яблоко", "яБЛОКО"},
        {"Ω", "ω"}, {"漢字", "漢字"}, {"🙂", "🙂"}};
    for (const auto& [one, other] : pairs) {
        EXPECT_TRUE(strings.equalIgnoringCase(one, other)) << one << " and " << other;
        EXPECT_TRUE(std::is_eq(strings.caseInsensitiveCompare(other, one))) << one << " and " << other;
    }
}

TEST_P(StringComparisonContract, AccentsCount) {
    EXPECT_FALSE(strings.equalIgnoringCase("Resume", "Résumé"));
    EXPECT_FALSE(strings.equalIgnoringCase("u", "ü"));
}

TEST_P(StringComparisonContract, TheSmallerTextComesFirstInBothOrders) {
    constexpr std::pair<std::string_view, std::string_view> pairs[] = {
        {"", "a"},  {"Mail", "Mailbox"}, {"clock", "MAIL"}, {"CLOCK", "mail"}, {"A1", "a2"},
        {"_", "a"}, {"_", "A"},          {"a", "漢"},       {"字", "漢"},      {"App 10", "App 9"}};
    for (const auto& [smaller, greater] : pairs) {
        EXPECT_TRUE(std::is_lt(strings.caseInsensitiveCompare(smaller, greater))) << smaller << greater;
        EXPECT_TRUE(std::is_gt(strings.caseInsensitiveCompare(greater, smaller))) << smaller << greater;
    }
}

INSTANTIATE_TEST_SUITE_P(On, StringComparisonContract, onBothSides<HostStage>(), nameOfSide);

} // namespace qbsp::contracts
