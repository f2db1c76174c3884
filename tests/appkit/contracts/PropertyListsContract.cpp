#include "Contract.h"
#include "Samples.h"
#include "stages/FilesStage.h"

namespace qbsp::contracts {

using platform::Atomically;
using platform::Dictionary;
using platform::URL;

namespace {

class PropertyListsContract : public Contract<FilesStage> {
protected:
    [[nodiscard]] std::optional<Dictionary> read() const {
        return propertyLists.dictionaryWithContentsOfFile(path);
    }

    [[nodiscard]] bool write(const Dictionary& dictionary, Atomically atomically = Atomically::yes) {
        return propertyLists.writeToURL(dictionary, URL::fileURLWithPath(path), atomically);
    }

    platform::PropertyLists& propertyLists = stage->propertyLists();
    const std::string path = stage->folder() + "/a list.plist";
};

} // namespace

TEST_P(PropertyListsContract, ThereIsNoDictionaryWithoutAPathAndWithoutAFile) {
    EXPECT_EQ(propertyLists.dictionaryWithContentsOfFile(std::nullopt), std::nullopt);
    EXPECT_EQ(read(), std::nullopt);
    EXPECT_EQ(propertyLists.dictionaryWithContentsOfFile(stage->folder()), std::nullopt);
}

TEST_P(PropertyListsContract, ThereIsNoDictionaryInAnotherFile) {
    stage->putOtherFile(path);

    EXPECT_EQ(read(), std::nullopt);
}

TEST_P(PropertyListsContract, AValueOfEveryKindIsReadAsItWasWritten) {
    const auto values = valuesOfEveryKind();
    const Dictionary dictionary{{"All", platform::Array(values.begin(), values.end())}, {"Ü & <", true}};
    for (const Atomically atomically : {Atomically::yes, Atomically::no}) {
        EXPECT_TRUE(write(dictionary, atomically));
        EXPECT_EQ(read(), dictionary);
    }
}

TEST_P(PropertyListsContract, TextThatXMLCannotHoldAsItIsIsReadAsItWasWritten) {
    const Dictionary dictionary{{"\\U0041 C:\\Users\\U \\\\U0042 \\u0043", "\\U005C\\"},
                                {"Key", "\xEF\xBF\xBF \x01\x1F \xF0\x9F\x98\x80\r\n"}};
    EXPECT_TRUE(write(dictionary));

    EXPECT_EQ(read(), dictionary);
}

TEST_P(PropertyListsContract, AnEmptyDictionaryIsADictionary) {
    EXPECT_TRUE(write({}));

    EXPECT_EQ(read(), Dictionary());
}

TEST_P(PropertyListsContract, ADictionaryIsWrittenAsXML) {
    EXPECT_TRUE(write({{"keyCode", std::int64_t{0}}}));

    EXPECT_TRUE(stage->isXML(path));
}

TEST_P(PropertyListsContract, ADictionaryReplacesWhatWasThere) {
    EXPECT_TRUE(write({{"Old", true}}));
    EXPECT_TRUE(write({{"New", true}}));

    EXPECT_EQ(read(), (Dictionary{{"New", true}}));
}

TEST_P(PropertyListsContract, NothingIsWrittenWithoutAURL) {
    EXPECT_FALSE(propertyLists.writeToURL({{"Key", true}}, std::nullopt, Atomically::yes));
}

TEST_P(PropertyListsContract, AWriteThatFailsReturnsFalseAndLeavesWhatWasThere) {
    EXPECT_TRUE(write({{"Old", true}}));
    stage->block();
    EXPECT_FALSE(write({{"New", true}}));
    stage->unblock();

    EXPECT_EQ(read(), (Dictionary{{"Old", true}}));
}

INSTANTIATE_TEST_SUITE_P(On, PropertyListsContract, onBothSides<FilesStage>(), nameOfSide);

} // namespace qbsp::contracts
