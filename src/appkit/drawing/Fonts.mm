#include "appkit/drawing/Fonts.h"

#include "appkit/bridge/Strings.h"
#import "appkit/drawing/OtherFonts.h"

#include <algorithm>
#include <cmath>
#include <span>

namespace qbsp::appkit {

namespace {

/// The system's own small size does not follow the chosen one everywhere.
constexpr CGFloat remarkShare = CGFloat{11} / 13;

bool hasCharacters(NSFont* font, NSString* characters) {
    NSCharacterSet* covered = [font coveredCharacterSet];
    NSData* data = [characters dataUsingEncoding:NSUTF32LittleEndianStringEncoding];
    const std::span codes(static_cast<const UTF32Char*>([data bytes]), [data length] / sizeof(UTF32Char));
    return std::ranges::all_of(
        codes, [covered](UTF32Char code) { return static_cast<bool>([covered longCharacterIsMember:code]); });
}

/// What joins or varies other characters, and is not drawn itself.
NSString* withoutJoiners(NSString* character) {
    NSMutableCharacterSet* joiners = [[[NSMutableCharacterSet alloc] init] autorelease];
    [joiners addCharactersInRange:NSMakeRange(0x200C, 2)];
    [joiners addCharactersInRange:NSMakeRange(0xFE00, 16)];
    return [[character componentsSeparatedByCharactersInSet:joiners] componentsJoinedByString:@""];
}

} // namespace

NSFont* controlFont() {
    return [NSFont systemFontOfSize:[NSFont systemFontSize]];
}

NSFont* remarkFont() {
    return [NSFont systemFontOfSize:std::round([NSFont systemFontSize] * remarkShare)];
}

CGFloat lineHeight(NSFont* font) {
    NSDictionary* attributes = [NSDictionary dictionaryWithObject:font forKey:NSFontAttributeName];
    return std::ceil([@" " sizeWithAttributes:attributes].height);
}

NSFont* fontWithCharacters(NSString* characters, NSFont* font) {
    return hasCharacters(font, characters) ? font : otherFontWithCharacters(characters, [font pointSize]);
}

NSFont* fontForText(NSString* text, NSFont* font) {
    NSString* line = [text stringByReplacingOccurrencesOfString:@"\n" withString:@""];
    NSFont* other = fontWithCharacters(line, font);
    return other == nil ? font : other;
}

NSAttributedString* FontSubstitution::text(NSString* characters, NSDictionary* attributes) {
    NSMutableAttributedString* text =
        [[[NSMutableAttributedString alloc] initWithString:characters attributes:attributes] autorelease];
    NSFont* font = [attributes objectForKey:NSFontAttributeName];
    if (hasCharacters(font, characters))
        return text;
    for (NSUInteger start = 0; start < [characters length];) {
        const NSRange range = [characters rangeOfComposedCharacterSequenceAtIndex:start];
        NSFont* substitute = fontFor(withoutJoiners([characters substringWithRange:range]), font);
        [text addAttribute:NSFontAttributeName value:substitute range:range];
        start = NSMaxRange(range);
    }
    return text;
}

NSFont* FontSubstitution::fontFor(NSString* character, NSFont* font) {
    if (hasCharacters(font, character))
        return font;
    const auto [found, isNew] = substitutes_.try_emplace(utf8(character));
    if (isNew) {
        NSFont* other = otherFontWithCharacters(character, [font pointSize]);
        found->second = Retained<NSFont*>(other == nil ? font : other);
    }
    return found->second.get();
}

} // namespace qbsp::appkit
