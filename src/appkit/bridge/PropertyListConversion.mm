#import "appkit/bridge/PropertyListConversion.h"

#include "appkit/bridge/Strings.h"

#include <span>

namespace qbsp::appkit {

using platform::Array;
using platform::Data;
using platform::Date;
using platform::Dictionary;
using platform::Value;

namespace {

// Booleans are numbers of a class of their own; neither isEqual: nor objCType tells them apart.
bool isBoolean(NSNumber* number) {
    return [number isKindOfClass:[[NSNumber numberWithBool:YES] class]];
}

Value valueFromNumber(NSNumber* number) {
    if (isBoolean(number))
        return static_cast<bool>([number boolValue]);
    switch (*[number objCType]) {
    case 'f':
    case 'd':
        return [number doubleValue];
    case 'I':
        return static_cast<std::uint32_t>([number unsignedIntValue]);
    case 'L':
    case 'Q':
        return static_cast<std::uint64_t>([number unsignedLongLongValue]);
    case 'l':
    case 'q':
        return static_cast<std::int64_t>([number longLongValue]);
    default:
        return static_cast<std::int32_t>([number intValue]);
    }
}

Data bytesOf(NSData* data) {
    const std::span bytes(static_cast<const std::byte*>([data bytes]), [data length]);
    return {bytes.begin(), bytes.end()};
}

Array arrayFrom(NSArray* objects) {
    Array array;
    for (NSUInteger index = 0; index < [objects count]; ++index)
        array.push_back(valueFromObject([objects objectAtIndex:index]));
    return array;
}

Dictionary dictionaryFrom(NSDictionary* objects) {
    Dictionary dictionary;
    NSEnumerator* keys = [objects keyEnumerator];
    for (id key = [keys nextObject]; key != nil; key = [keys nextObject])
        if ([key isKindOfClass:[NSString class]])
            dictionary[utf8(key)] = valueFromObject([objects objectForKey:key]);
    return dictionary;
}

NSArray* objectFromArray(const Array& array) {
    NSMutableArray* objects = [NSMutableArray arrayWithCapacity:array.size()];
    for (const Value& value : array)
        if (value.exists())
            [objects addObject:objectFromValue(value)];
    return objects;
}

struct ObjectMaker {
    id operator()(std::monostate) const { return nil; }

    id operator()(bool value) const { return [NSNumber numberWithBool:value ? YES : NO]; }

    id operator()(std::int32_t value) const { return [NSNumber numberWithInt:value]; }

    id operator()(std::uint32_t value) const { return [NSNumber numberWithUnsignedInt:value]; }

    id operator()(std::int64_t value) const { return [NSNumber numberWithLongLong:value]; }

    id operator()(std::uint64_t value) const { return [NSNumber numberWithUnsignedLongLong:value]; }

    id operator()(double value) const { return [NSNumber numberWithDouble:value]; }

    id operator()(const std::string& value) const { return nsString(value); }

    id operator()(const Data& value) const { return [NSData dataWithBytes:value.data() length:value.size()]; }

    id operator()(const Array& value) const { return objectFromArray(value); }

    id operator()(const Dictionary& value) const { return objectFromDictionary(value); }

    id operator()(const Date& value) const {
        return [NSDate dateWithTimeIntervalSinceReferenceDate:value.secondsSinceReferenceDate];
    }
};

} // namespace

Value valueFromObject(id object) {
    if ([object isKindOfClass:[NSNumber class]])
        return valueFromNumber(object);
    if ([object isKindOfClass:[NSString class]])
        return utf8(object);
    if ([object isKindOfClass:[NSDate class]])
        return Date{[static_cast<NSDate*>(object) timeIntervalSinceReferenceDate]};
    if ([object isKindOfClass:[NSData class]])
        return bytesOf(object);
    if ([object isKindOfClass:[NSArray class]])
        return arrayFrom(object);
    if ([object isKindOfClass:[NSDictionary class]])
        return dictionaryFrom(object);
    return {};
}

std::optional<Dictionary> dictionaryFromObject(id object) {
    if (![object isKindOfClass:[NSDictionary class]])
        return std::nullopt;
    return dictionaryFrom(object);
}

id objectFromValue(const Value& value) {
    return value.visit(ObjectMaker{});
}

NSDictionary* objectFromDictionary(const Dictionary& dictionary) {
    NSMutableDictionary* objects = [NSMutableDictionary dictionaryWithCapacity:dictionary.size()];
    for (const auto& [key, value] : dictionary)
        if (value.exists())
            [objects setObject:objectFromValue(value) forKey:nsString(key)];
    return objects;
}

NSDictionary* objectFromDictionary(const std::optional<Dictionary>& dictionary) {
    return dictionary ? objectFromDictionary(*dictionary) : nil;
}

} // namespace qbsp::appkit
