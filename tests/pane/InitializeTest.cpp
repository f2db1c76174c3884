#include "PaneTest.h"

namespace qbsp {

using ClassStartUp = PaneTest;

TEST_F(ClassStartUp, StoresNoForTheTabWhenNothingIsStored) {
    session.initialize();

    EXPECT_EQ(transcript(), R"(
NSUserDefaults objectForKey:("SorterTabIsInvisible") -> null
NSUserDefaults setBool:forKey:(false, "SorterTabIsInvisible")
)");
}

TEST_F(ClassStartUp, KeepsWhatTheHostHolds) {
    world.defaults.put("SorterTabIsInvisible", true);

    session.initialize();

    EXPECT_EQ(transcript(), R"(
NSUserDefaults objectForKey:("SorterTabIsInvisible") -> true
)");
}

TEST_F(ClassStartUp, KeepsAValueOfAnyType) {
    for (const platform::Value& value : {platform::Value("maybe"), platform::Value(0),
                                         platform::Value(platform::Array{}), platform::Value(0.0)}) {
        world.defaults.put("SorterTabIsInvisible", value);

        session.initialize();

        EXPECT_EQ(world.defaults.value("SorterTabIsInvisible"), value);
    }
}

TEST_F(ClassStartUp, ChangesNothingTheSecondTime) {
    session.initialize();
    forget();

    session.initialize();

    EXPECT_EQ(transcript(), R"(
NSUserDefaults objectForKey:("SorterTabIsInvisible") -> false
)");
}

} // namespace qbsp
