#include "appkit/view/ShortenedText.h"

namespace qbsp::appkit {

NSString* withoutMiddle(NSString* text, NSUInteger length) {
    if ([text length] <= length)
        return text;
    NSUInteger head = (length + 1) / 2;
    NSUInteger tail = [text length] - length / 2;
    head = [text rangeOfComposedCharacterSequenceAtIndex:head].location;
    if (tail < [text length] && [text rangeOfComposedCharacterSequenceAtIndex:tail].location != tail)
        tail = NSMaxRange([text rangeOfComposedCharacterSequenceAtIndex:tail]);
    return [NSString
        stringWithFormat:@"%@\u2026%@", [text substringToIndex:head], [text substringFromIndex:tail]];
}

NSString* shortenedInTheMiddle(NSString* text, const std::function<bool(NSString*)>& fits) {
    if (fits(text))
        return text;
    NSUInteger most = 0;
    NSUInteger tooMany = [text length];
    while (most + 1 < tooMany) {
        const NSUInteger length = (most + tooMany) / 2;
        (fits(withoutMiddle(text, length)) ? most : tooMany) = length;
    }
    return withoutMiddle(text, most);
}

} // namespace qbsp::appkit
