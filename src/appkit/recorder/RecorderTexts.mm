#include "appkit/recorder/RecorderTexts.h"

#include "appkit/bridge/LocalizedTexts.h"
#include "appkit/bridge/Strings.h"
#include "appkit/recorder/SystemNotation.h"

namespace qbsp::recorder {

using appkit::localized;
using appkit::nsString;

namespace {

NSString* withModifierNames(NSString* format) {
    const ModifierNames names = modifierNames();
    return [NSString
        stringWithFormat:format, nsString(names.control), nsString(names.option), nsString(names.command)];
}

NSString* ownSentence(Refusal refusal) {
    switch (refusal) {
    case Refusal::plainKey:
        return withModifierNames(localized(@"Hold %@, %@ or %@ together with this key."));
    case Refusal::shiftAlone:
        return withModifierNames(localized(@"Shift alone is not enough: hold %@, %@ or %@ as well."));
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
