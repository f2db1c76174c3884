#include "appkit/view/TypeSelection.h"

namespace qbsp::appkit {

namespace {

constexpr NSTimeInterval pause = 1;

/// Without case and diacritics.
NSString* folded(NSString* text) {
    NSString* decomposed = [[text decomposedStringWithCanonicalMapping] lowercaseString];
    NSArray* bases = [decomposed componentsSeparatedByCharactersInSet:[NSCharacterSet nonBaseCharacterSet]];
    return [bases componentsJoinedByString:@""];
}

} // namespace

std::optional<NSInteger> TypeSelection::type(NSString* characters, NSTimeInterval time, NSInteger rowCount,
                                             const NameOfRow& nameOfRow) {
    const bool continues = typed_.get() != nil && time - lastTime_ < pause;
    NSString* typed = continues ? [typed_.get() stringByAppendingString:characters] : characters;
    typed_ = Retained<NSString*>(typed);
    lastTime_ = time;
    for (NSInteger row = 0; row < rowCount; ++row)
        if ([folded(nameOfRow(row)) hasPrefix:folded(typed)])
            return row;
    return std::nullopt;
}

} // namespace qbsp::appkit
