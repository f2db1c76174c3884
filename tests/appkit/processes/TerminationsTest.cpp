#include "processes/Terminations.h"

#include <gtest/gtest.h>

namespace processes {

namespace {

using Identifiers = std::vector<std::string>;

const Application sorter{{10, 1}, "/Sorter.app", "com.quarrybook.Sorter"};
const Application mail{{20, 2}, "/Mail.app", "org.example.Mail"};
const Application laterWithSameNumber{{10, 9}, "/Clock.app", "org.example.Clock"};

} // namespace

TEST(Terminations, AreNoneWhileNothingEnds) {
    Terminations terminations({sorter});

    EXPECT_EQ(terminations.look({sorter}), Identifiers());
    EXPECT_EQ(terminations.look({sorter, mail}), Identifiers());
}

TEST(Terminations, AreReportedOnce) {
    Terminations terminations({sorter, mail});

    EXPECT_EQ(terminations.look({mail}), Identifiers{sorter.identifier});
    EXPECT_EQ(terminations.look({mail}), Identifiers());
    EXPECT_EQ(terminations.look({}), Identifiers{mail.identifier});
}

TEST(Terminations, AreNotReportedBeforeTheProcessHasGone) {
    Terminations terminations({sorter});

    terminations.announced(sorter.process.pid, sorter.identifier);

    EXPECT_EQ(terminations.look({sorter}), Identifiers());
    EXPECT_EQ(terminations.look({}), Identifiers{sorter.identifier});
}

TEST(Terminations, AreReportedOnceThoughTheAnnouncementComesLate) {
    Terminations terminations({sorter});
    EXPECT_EQ(terminations.look({}), Identifiers{sorter.identifier});

    terminations.announced(sorter.process.pid, sorter.identifier);

    EXPECT_EQ(terminations.look({}), Identifiers());
}

TEST(Terminations, IncludeAnApplicationThatCameAndWentBetweenTwoLooks) {
    Terminations terminations({});

    terminations.announced(sorter.process.pid, sorter.identifier);

    EXPECT_EQ(terminations.look({}), Identifiers{sorter.identifier});
    EXPECT_EQ(terminations.look({}), Identifiers());
}

TEST(Terminations, AreReportedOnceThoughTheAnnouncementTellsOnlyTheIdentifier) {
    Terminations terminations({sorter, mail});

    terminations.announced(0, sorter.identifier);

    EXPECT_EQ(terminations.look({sorter, mail}), Identifiers());
    EXPECT_EQ(terminations.look({mail}), Identifiers{sorter.identifier});
    EXPECT_EQ(terminations.look({}), Identifiers{mail.identifier});
    terminations.announced(0, mail.identifier);
    EXPECT_EQ(terminations.look({}), Identifiers());
}

TEST(Terminations, IncludeAnUnknownApplicationThatToldOnlyItsIdentifier) {
    Terminations terminations({mail});
    for (int times = 0; times < 2; ++times) {
        terminations.announced(0, sorter.identifier);

        EXPECT_EQ(terminations.look({mail}), Identifiers{sorter.identifier});
    }
}

TEST(Terminations, DoNotIncludeWhatIsNoApplication) {
    Terminations terminations({});

    terminations.announced(sorter.process.pid, "");

    EXPECT_EQ(terminations.look({}), Identifiers());
}

TEST(Terminations, TellOneProcessFromALaterOneOfTheSameNumber) {
    Terminations terminations({sorter});

    EXPECT_EQ(terminations.look({laterWithSameNumber}), Identifiers{sorter.identifier});
    terminations.announced(laterWithSameNumber.process.pid, laterWithSameNumber.identifier);
    EXPECT_EQ(terminations.look({}), Identifiers{laterWithSameNumber.identifier});
}

} // namespace processes
