#include "appkit/recorder/RecorderTexts.h"

#include "appkit/bridge/LocalizedTexts.h"

namespace qbsp::recorder {

using appkit::localized;

namespace {

NSString* ownSentence(Refusal refusal) {
    switch (refusal) {
    case Refusal::plainKey:
        return localized(@"Hold Control, Option (Alt) or Command (Super) together with this key.");
    case Refusal::shiftAlone:
        return localized(
            @"Shift alone is not enough: hold Control, Option (Alt) or Command (Super) as well.");
    case Refusal::unknownKey:
        return localized(@"This key cannot be part of a shortcut.");
    case Refusal::taken:
        return localized(@"This combination is already used.");
    }
    return @"";
}

NSString* withCapital(NSString* text) {
    const NSRange first = [text rangeOfComposedCharacterSequenceAtIndex:0];
    NSString* capital = [[text substringWithRange:first] uppercaseString];
    return [text stringByReplacingCharactersInRange:first withString:capital];
}

NSString* withFullStop(NSString* text) {
    NSCharacterSet* ends = [NSCharacterSet characterSetWithCharactersInString:@".!?…。"];
    const bool ended = [ends characterIsMember:[text characterAtIndex:[text length] - 1]];
    return ended ? text : [text stringByAppendingString:@"."];
}

} // namespace

NSString* listeningText() {
    return localized(@"Type shortcut");
}

NSString* emptyText() {
    return localized(@"Click to record");
}

NSString* emptyValueText() {
    return localized(@"No shortcut");
}

NSString* roleText() {
    return localized(@"shortcut recorder");
}

NSString* refusalSentence(Refusal refusal, NSString* reason) {
    if (refusal != Refusal::taken || [reason length] == 0)
        return ownSentence(refusal);
    return withFullStop(withCapital(reason));
}

} // namespace qbsp::recorder
