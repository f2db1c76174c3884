#import "appkit/bridge/Strings.h"

namespace qbsp::appkit {

namespace {

NSString* decoded(std::string_view text, NSStringEncoding encoding) {
    return [[[NSString alloc] initWithBytes:text.data() length:text.size() encoding:encoding] autorelease];
}

} // namespace

std::string utf8(NSString* text) {
    NSData* data = [text dataUsingEncoding:NSUTF8StringEncoding allowLossyConversion:YES];
    return {static_cast<const char*>([data bytes]), [data length]};
}

std::optional<std::string> optionalUTF8(NSString* text) {
    return text == nil ? std::nullopt : std::optional(utf8(text));
}

NSString* nsString(std::string_view text) {
    if (text.empty())
        return @"";
    NSString* string = decoded(text, NSUTF8StringEncoding);
    return string == nil ? decoded(text, NSISOLatin1StringEncoding) : string;
}

} // namespace qbsp::appkit
