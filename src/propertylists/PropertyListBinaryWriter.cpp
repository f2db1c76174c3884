#include "propertylists/PropertyListFormats.h"

#include <algorithm>
#include <bit>
#include <concepts>
#include <cstddef>
#include <limits>
#include <vector>

namespace qbsp::propertylists {

using platform::Array;
using platform::Data;
using platform::Date;
using platform::Dictionary;
using platform::Value;

namespace {

std::string charactersOf(const Data& data) {
    std::string characters;
    for (const std::byte each : data)
        characters += std::to_integer<char>(each);
    return characters;
}

std::string bigEndian(std::uint64_t number, unsigned size) {
    std::string bytes;
    for (unsigned byte = size; byte-- > 0;)
        bytes += static_cast<char>(number >> (8 * byte) & 0xFFU);
    return bytes;
}

std::string integerObject(std::uint64_t number) {
    // Integers of 8 bytes have a sign.
    constexpr std::uint64_t highest = std::numeric_limits<std::int64_t>::max();
    return number <= highest ? "\x13" + bigEndian(number, 8)
                             : "\x14" + bigEndian(0, 8) + bigEndian(number, 8);
}

std::string integerObject(std::int64_t number) {
    return "\x13" + bigEndian(static_cast<std::uint64_t>(number), 8);
}

std::string counted(unsigned kind, std::size_t count) {
    constexpr unsigned countFollows = 15;
    const auto mark = kind << 4U | (count < countFollows ? static_cast<unsigned>(count) : countFollows);
    return static_cast<char>(mark) +
           (count < countFollows ? std::string() : integerObject(std::uint64_t{count}));
}

bool isASCII(std::string_view text) {
    return std::ranges::all_of(text, [](char each) { return static_cast<unsigned char>(each) < 0x80; });
}

/// The text, which is valid UTF-8, in UTF-16.
std::string inUTF16(std::string_view text) {
    std::string units;
    for (std::size_t place = 0; place < text.size();) {
        const auto first = static_cast<unsigned char>(text[place]);
        const std::size_t length = first < 0x80 ? 1 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
        std::uint32_t code = length == 1 ? first : first & (0x7FU >> length);
        for (std::size_t index = place + 1; index < place + length && index < text.size(); ++index)
            code = code << 6U | (static_cast<unsigned char>(text[index]) & 0x3FU);
        place += length;
        if (code < 0x10000) {
            units += bigEndian(code, 2);
            continue;
        }
        units += bigEndian(0xD800 + ((code - 0x10000) >> 10U), 2) + bigEndian(0xDC00 + (code & 0x3FFU), 2);
    }
    return units;
}

std::string textObject(const std::string& text) {
    if (isASCII(text))
        return counted(5, text.size()) + text;
    const std::string units = inUTF16(text);
    return counted(6, units.size() / 2) + units;
}

/// Collects the objects of a list, each after what it refers to.
class BinaryWriter {
public:
    std::string bytes(const Value& root) {
        const std::uint64_t number = add(root);
        std::string bytes(binaryBeginning);
        std::string table;
        for (const std::string& object : objects_) {
            table += bigEndian(bytes.size(), size);
            bytes += object;
        }
        const std::string trailer = std::string(6, '\0') + static_cast<char>(size) + static_cast<char>(size) +
                                    bigEndian(objects_.size(), 8) + bigEndian(number, 8) +
                                    bigEndian(bytes.size(), 8);
        return bytes + table + trailer;
    }

    std::uint64_t operator()(std::monostate) { return 0; }

    std::uint64_t operator()(bool flag) { return add(std::string(1, flag ? '\x09' : '\x08')); }

    std::uint64_t operator()(double real) {
        return add('\x23' + bigEndian(std::bit_cast<std::uint64_t>(real), 8));
    }

    std::uint64_t operator()(const std::string& text) { return add(textObject(text)); }

    std::uint64_t operator()(const Date& date) {
        return add('\x33' + bigEndian(std::bit_cast<std::uint64_t>(date.secondsSinceReferenceDate), 8));
    }

    std::uint64_t operator()(const Data& data) { return add(counted(4, data.size()) + charactersOf(data)); }

    template <std::signed_integral Integer>
    std::uint64_t operator()(Integer integer) {
        return add(integerObject(std::int64_t{integer}));
    }

    template <std::unsigned_integral Integer>
    std::uint64_t operator()(Integer integer) {
        return add(integerObject(std::uint64_t{integer}));
    }

    std::uint64_t operator()(const Array& array) {
        std::string references;
        for (const Value& each : array)
            if (each.exists())
                references += bigEndian(add(each), size);
        return add(counted(10, references.size() / size) + references);
    }

    std::uint64_t operator()(const Dictionary& dictionary) {
        std::string keys;
        std::string values;
        for (const auto& [key, each] : dictionary) {
            if (!each.exists())
                continue;
            keys += bigEndian(add(textObject(key)), size);
            values += bigEndian(add(each), size);
        }
        return add(counted(13, keys.size() / size) + keys + values);
    }

private:
    static constexpr unsigned size = 4; ///< of offsets and references, in bytes

    std::uint64_t add(const Value& value) { return value.visit(*this); }

    std::uint64_t add(std::string object) {
        objects_.push_back(std::move(object));
        return objects_.size() - 1;
    }

    std::vector<std::string> objects_;
};

} // namespace

std::string binaryBytes(const Value& value) {
    return BinaryWriter().bytes(value);
}

} // namespace qbsp::propertylists
