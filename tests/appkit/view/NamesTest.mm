#include "PaneWindow.h"

#include "appkit/drawing/Fonts.h"
#import "appkit/view/QBSPNameFormatter.h"
#include "appkit/view/ShortenedText.h"

#include <string>

namespace qbsp::appkit {

namespace {

std::string text(NSString* string) {
    return string == nil ? "" : [string UTF8String];
}

std::string shortenedTo(NSUInteger length, NSString* name) {
    return text(
        shortenedInTheMiddle(name, [=](NSString* candidate) { return [candidate length] <= length; }));
}

NSFont* fontOf(NSString* characters) {
    FontSubstitution fonts;
    NSDictionary* attributes = [NSDictionary dictionaryWithObject:controlFont() forKey:NSFontAttributeName];
    return [fonts.text(characters, attributes) attribute:NSFontAttributeName atIndex:0 effectiveRange:NULL];
}

} // namespace

class Names : public PaneWindow {
protected:
    /// The pixels of the only row of the list, when that has this name.
    [[nodiscard]] NSData* rowNamed(const std::string& name) {
        setNames({name});
        [window display];
        NSTableView* table = controls().hideAppsTable;
        [table lockFocus];
        NSBitmapImageRep* bitmap =
            [[[NSBitmapImageRep alloc] initWithFocusedViewRect:[table frameOfCellAtColumn:0
                                                                                      row:0]] autorelease];
        [table unlockFocus];
        return [bitmap TIFFRepresentation];
    }
};

TEST_F(Names, AreShortenedInTheMiddle) {
    EXPECT_EQ(shortenedTo(20, @"Atlas"), "Atlas");
    EXPECT_EQ(shortenedTo(9, @"Quarterly Reports"), "Quar…orts");
    EXPECT_EQ(shortenedTo(2, @"Quarterly Reports"), "Q…");
}

TEST_F(Names, AreNotCutWithinACharacter) {
    EXPECT_EQ(shortenedTo(4, @"\U0001F600\U0001F601\U0001F602\U0001F603"), "\U0001F600…");
}

TEST_F(Names, KeepTheirBeginningAndEndWhenTheyAreVeryLong) {
    NSString* const name = [NSString stringWithFormat:@"A%@Z", [@"" stringByPaddingToLength:1000
                                                                                 withString:@"x"
                                                                            startingAtIndex:0]];

    NSString* const formatted = [[[[QBSPNameFormatter alloc] init] autorelease] stringForObjectValue:name];

    EXPECT_LT([formatted length], 250U);
    EXPECT_TRUE([formatted hasPrefix:@"Ax"]);
    EXPECT_TRUE([formatted hasSuffix:@"xZ"]);
}

TEST_F(Names, StandInAToolTipWhereTheyAreShortened) {
    const std::string longName = std::string(80, 'n') + " end";
    setNames({"Atlas", longName});

    EXPECT_EQ(text([controls().hideAppsTable toolTipForRow:1]), longName);
    EXPECT_EQ(text([controls().hideAppsTable toolTipForRow:0]),
              text([controls().hideAppsTable accessibilityHelp]));
}

TEST_F(Names, AreSetInAFontThatHasTheirCharacters) {
    for (NSString* const name :
         {@"Atlas", @"日本語", @"简体字", @"한국어", @"עברית", @"العربية", @"\U0001F600"}) {
        NSFont* const font = fontOf(name);
        EXPECT_EQ(font,
                  fontWithCharacters(
                      [name substringToIndex:[name rangeOfComposedCharacterSequenceAtIndex:0].length], font))
            << text(name);
    }
    EXPECT_EQ(fontOf(@"Atlas"), controlFont());
}

TEST_F(Names, OfDifferentCharactersLookDifferent) {
    EXPECT_TRUE([rowNamed("日本") isEqual:rowNamed("日本")]);
    EXPECT_FALSE([rowNamed("日本") isEqual:rowNamed("中国")]);
    EXPECT_FALSE([rowNamed("日本") isEqual:rowNamed("??")]);
    EXPECT_FALSE([rowNamed("한국") isEqual:rowNamed("??")]);
}

} // namespace qbsp::appkit
