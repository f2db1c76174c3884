#include "Description.h"

#include <cstring>

namespace standin {

namespace {

bool isBoolean(NSNumber* number) {
    return [number isKindOfClass:[[NSNumber numberWithBool:YES] class]];
}

std::string quoted(NSString* text) {
    std::string result = "\"";
    for (const char* each = [text UTF8String]; *each != '\0'; ++each) {
        const bool needsEscape = *each == '"' || *each == '\\';
        result += needsEscape ? std::string("\\") + *each
                              : std::string(*each == '\n' ? "\\n" : std::string(1, *each));
    }
    return result + '"';
}

std::string description(NSNumber* number) {
    if (isBoolean(number))
        return [number boolValue] ? "YES" : "NO";
    return [[number stringValue] UTF8String];
}

std::string description(NSDictionary* dictionary) {
    std::string entries;
    NSEnumerator* keys =
        [[[dictionary allKeys] sortedArrayUsingSelector:@selector(compare:)] objectEnumerator];
    while (NSString* key = [keys nextObject])
        entries += (entries.empty() ? "" : "; ") + quoted(key) + "=" +
                   standin::description([dictionary objectForKey:key]);
    return "{" + entries + "}";
}

std::string description(NSArray* array) {
    std::string elements;
    NSEnumerator* each = [array objectEnumerator];
    while (id element = [each nextObject])
        elements += (elements.empty() ? "" : ", ") + standin::description(element);
    return "(" + elements + ")";
}

} // namespace

std::string description(id value) {
    if (value == nil)
        return "none";
    if ([value isKindOfClass:[NSDictionary class]])
        return description(static_cast<NSDictionary*>(value));
    if ([value isKindOfClass:[NSArray class]])
        return description(static_cast<NSArray*>(value));
    if ([value isKindOfClass:[NSNumber class]])
        return description(static_cast<NSNumber*>(value));
    return quoted([value description]);
}

} // namespace standin
