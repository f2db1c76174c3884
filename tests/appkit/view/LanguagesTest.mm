#include "LaidOutPane.h"

#include <filesystem>
#include <string>
#include <vector>

namespace qbsp::appkit {

namespace {

NSString* const longestReasonKey = @"Shift alone is not enough: hold %@, %@ or %@ as well.";

/// The tables of all languages, by the names of their folders.
std::vector<std::filesystem::path> tables() {
    std::vector<std::filesystem::path> found;
    for (const auto& folder : std::filesystem::directory_iterator(RESOURCES))
        if (folder.path().extension() == ".lproj")
            found.push_back(folder.path() / "Localizable.strings");
    return found;
}

NSDictionary* textsIn(const std::filesystem::path& table) {
    NSString* path = [NSString stringWithUTF8String:table.c_str()];
    return [[NSString stringWithContentsOfFile:path encoding:NSUTF8StringEncoding
                                         error:nullptr] propertyListFromStringsFileFormat];
}

class Languages : public LaidOutPane {
protected:
    /// The titles of the columns, and the refusal that needs the most room.
    void expectColumnsAndReasonWhole(const Translation& translate) {
        NSArray* columns = [controls().hideAppsTable tableColumns];
        for (NSUInteger index = 0; index < [columns count]; ++index) {
            NSTableColumn* column = [columns objectAtIndex:index];
            EXPECT_GE([column width], [[column headerCell] cellSize].width);
        }
        NSString* reason =
            [translate(longestReasonKey) stringByReplacingOccurrencesOfString:@"%@"
                                                                   withString:translate(@"Super")];
        for (QBSPRecorderView* recorder : {controls().noteHotKeyRecorder, controls().clipHotKeyRecorder})
            [[recorder reasonField] setStringValue:reason];
        expectNothingCutOrCovered();
    }

    void expectRoomFor(const Translation& translate, const std::vector<NSSize>& rooms) {
        for (const NSSize room : rooms) {
            setTexts(translate);
            [view contentsDidChange];
            [view setFrameSize:room];
            expectNothingCutOrCovered();
            expectColumnsAndReasonWhole(translate);
        }
    }
};

} // namespace

TEST_F(Languages, HaveRoomForAllOfTheirTexts) {
    const auto all = tables();
    ASSERT_GE(all.size(), 10U);
    for (const auto& table : all) {
        SCOPED_TRACE(table);
        NSDictionary* texts = textsIn(table);
        ASSERT_NE([texts objectForKey:longestReasonKey], nil);
        expectRoomFor([texts](NSString* key) { return [texts objectForKey:key]; },
                      {NSMakeSize(480, 356), NSMakeSize(595, 480), NSMakeSize(900, 800)});
    }
}

TEST_F(Languages, OfTextsTwiceAsLongHaveRoom) {
    expectRoomFor([](NSString* key) { return [NSString stringWithFormat:@"%@ %@", key, key]; },
                  {NSMakeSize(480, 356), NSMakeSize(595, 480), NSMakeSize(900, 800)});
}

TEST_F(Languages, AreShownInFontsThatHaveTheirCharacters) {
    for (const char* language : {"ja", "SimplifiedChinese", "de", "ar"}) {
        SCOPED_TRACE(language);
        NSDictionary* texts = textsIn(std::filesystem::path(RESOURCES) / (std::string(language) + ".lproj") /
                                      "Localizable.strings");
        setTexts([texts](NSString* key) { return [texts objectForKey:key]; });
        [view contentsDidChange];

        NSTextField* label = controls().hideAppLabel;
        NSString* text = [label stringValue];
        for (NSUInteger index = 0; index < [text length]; ++index)
            EXPECT_TRUE([[[label font] coveredCharacterSet] characterIsMember:[text characterAtIndex:index]])
                << [text UTF8String] << " at " << index;
    }
}

} // namespace qbsp::appkit
