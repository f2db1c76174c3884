#include "Contract.h"
#include "stages/DialogsStage.h"

#include <algorithm>

namespace qbsp::contracts {

namespace {

class AlertsContract : public Contract<DialogsStage> {
protected:
    [[nodiscard]] std::int64_t ask() {
        const auto alert = stage->alerts().makeAlert();
        alert->setAlertStyle(platform::AlertStyle::critical);
        alert->setMessageText("Größe \"unknown\"");
        alert->setInformativeText("Nobody knows it.");
        alert->addButtonWithTitle("First");
        alert->addButtonWithTitle("Second");
        return alert->runModal();
    }
};

} // namespace

TEST_P(AlertsContract, TheFirstButtonReturnsItsNumberAndTheNextOneMore) {
    stage->letUserPress("First");
    EXPECT_EQ(ask(), platform::NSAlertFirstButtonReturn);

    stage->letUserPress("Second");
    EXPECT_EQ(ask(), platform::NSAlertFirstButtonReturn + 1);
}

TEST_P(AlertsContract, TheUserReadsTheTextsAndTheButtons) {
    stage->letUserPress("First");

    std::ignore = ask();

    const auto texts = stage->textsOfAlert();
    for (const char* expected : {"Größe \"unknown\"", "Nobody knows it.", "First", "Second"})
        EXPECT_EQ(std::ranges::count(texts, expected), 1) << "the alert should show once: " << expected;
}

TEST_P(AlertsContract, TheFirstButtonIsTheDefaultButton) {
    stage->letUserPress("Second");

    std::ignore = ask();

    EXPECT_EQ(stage->defaultButtonOfAlert(), "First");
}

INSTANTIATE_TEST_SUITE_P(On, AlertsContract, onBothSides<DialogsStage>(), nameOfSide);

} // namespace qbsp::contracts
