#include "propertylists/PropertyListFormats.h"
#include "propertylists/PropertyListText.h"

#include <bit>
#include <cstdint>
#include <limits>
#include <optional>
#include <span>

namespace qbsp::propertylists {

using platform::Array;
using platform::Data;
using platform::Date;
using platform::Dictionary;
using platform::Value;

namespace {

constexpr std::size_t trailerSize = 32;

/// An object may be named many times, and is a value of its own each time: a few bytes can stand for any
/// number of them. This much memory, in bytes, is all that a list may come to.
constexpr std::size_t largestList = std::size_t{64} << 20U;

constexpr std::size_t sizeOfValue = sizeof(Value) + 104; // with its box and its place in a container

enum Kind : unsigned {
    single = 0,
    integer = 1,
    real = 2,
    date = 3,
    data = 4,
    ascii = 5,
    utf16 = 6,
    array = 10,
    dictionary = 13
};

/// A place, a count or a size as the format has them, also where memory is addressed with fewer bits.
using Offset = std::uint64_t;

/// Reads a list in the binary format. Offsets and counts are held against the bytes that there are before
/// they are used.
class BinaryReader {
public:
    explicit BinaryReader(std::string_view bytes) : bytes_(bytes) {}

    Parsed read() {
        const auto root = readTrailer();
        const Value value = root ? readObject(*root, 0) : Value();
        if (fault_)
            return *fault_;
        return value.exists() ? Parsed(value) : Parsed(Fault::notAPropertyList);
    }

private:
    /// The number of the root; the table of the objects is known then.
    std::optional<Offset> readTrailer() {
        if (bytes_.size() < binaryBeginning.size() + trailerSize)
            return std::nullopt;
        const Offset trailer = bytes_.size() - trailerSize;
        offsetSize_ = *number(trailer + 6, 1);
        referenceSize_ = *number(trailer + 7, 1);
        const Offset root = *number(trailer + 16, 8);
        objects_ = *number(trailer + 8, 8);
        table_ = *number(trailer + 24, 8);
        const bool areSizes = offsetSize_ - 1 < 8 && referenceSize_ - 1 < 8;
        const bool fits = areSizes && table_ <= trailer && objects_ <= (trailer - table_) / offsetSize_;
        return fits ? std::optional(root) : std::nullopt;
    }

    /// Big-endian; none beyond the end, or when it has more than 8 bytes.
    [[nodiscard]] std::optional<Offset> number(Offset place, Offset size) const {
        const auto bytes = part(place, size);
        if (!bytes || size > 8)
            return std::nullopt;
        Offset value = 0;
        for (const char byte : *bytes)
            value = value << 8U | static_cast<unsigned char>(byte);
        return value;
    }

    [[nodiscard]] std::optional<std::string_view> part(Offset place, Offset size) const {
        const bool fits = place <= bytes_.size() && size <= bytes_.size() - place;
        if (!fits)
            return std::nullopt;
        return bytes_.substr(static_cast<std::size_t>(place), static_cast<std::size_t>(size));
    }

    /// No value when the object is none, or a part of it.
    Value readObject(Offset object, std::size_t depth) {
        const auto place =
            object < objects_ ? number(table_ + object * offsetSize_, offsetSize_) : std::nullopt;
        const auto mark = place ? number(*place, 1) : std::nullopt;
        if (!mark || !spend(sizeOfValue))
            return {};
        const auto kind = static_cast<unsigned>(*mark >> 4U);
        const auto low = static_cast<unsigned>(*mark & 0xFU);
        return isFixed(kind) ? readFixed(kind, low, *place + 1) : readCounted(kind, low, *place + 1, depth);
    }

    static bool isFixed(unsigned kind) { return kind <= Kind::date; }

    [[nodiscard]] Value readFixed(unsigned kind, unsigned low, Offset place) const {
        constexpr unsigned no = 8;
        constexpr unsigned yes = 9;
        if (kind == Kind::single)
            return low == yes ? Value(true) : low == no ? Value(false) : Value();
        const Offset size = Offset{1} << low;
        if (kind == Kind::integer)
            return size == 16 ? readWideInteger(place) : readInteger(place, size);
        const auto bits = number(place, size);
        if (!bits || size < 4 || (kind == Kind::date && size != 8))
            return {};
        const double value =
            size == 8 ? std::bit_cast<double>(*bits)
                      : static_cast<double>(std::bit_cast<float>(static_cast<std::uint32_t>(*bits)));
        return kind == Kind::date ? Value(Date{value}) : Value(value);
    }

    // Integers of 8 bytes have a sign, narrower ones have none.
    [[nodiscard]] Value readInteger(Offset place, Offset size) const {
        const auto value = number(place, size);
        return value ? narrowestInteger(static_cast<std::int64_t>(*value)) : Value();
    }

    [[nodiscard]] Value readWideInteger(Offset place) const {
        const auto high = number(place, 8);
        const auto low = number(place + 8, 8);
        if (!high || !low)
            return {};
        const auto negative = static_cast<std::int64_t>(*low);
        if (*high == std::numeric_limits<std::uint64_t>::max() && negative < 0)
            return narrowestInteger(negative);
        return *high == 0 ? narrowestInteger(*low) : Value();
    }

    /// What has a count, which stands after the mark when it is 15 or more.
    Value readCounted(unsigned kind, unsigned low, Offset place, std::size_t depth) {
        constexpr unsigned countFollows = 15;
        Offset count = low;
        if (low == countFollows) {
            const Offset size = sizeOfCount(place);
            count = number(place + 1, size).value_or(bytes_.size() + 1);
            place += 1 + size;
        }
        if (count > bytes_.size())
            return {};
        return kind < Kind::array ? readBytes(kind, place, count)
                                  : readContainer(kind, place, count, depth + 1);
    }

    /// More bytes than a number has, where the mark of an integer is missing.
    [[nodiscard]] Offset sizeOfCount(Offset place) const {
        const Offset mark = number(place, 1).value_or(0);
        const bool isInteger = mark >> 4U == Kind::integer && (mark & 0xFU) <= 3;
        return isInteger ? Offset{1} << (mark & 0xFU) : bytes_.size();
    }

    Value readBytes(unsigned kind, Offset place, Offset count) {
        const auto bytes = part(place, kind == Kind::utf16 ? 2 * count : count);
        if (!bytes || !spend(bytes->size()))
            return {};
        switch (kind) {
        case Kind::data: {
            const auto data = std::as_bytes(std::span(*bytes));
            return Data(data.begin(), data.end());
        }
        case Kind::ascii:
            return textOf(*bytes, 1);
        case Kind::utf16:
            return textOf(*bytes, 2);
        default:
            return {};
        }
    }

    /// The characters of that many bytes each; no value when one is only half of one.
    static Value textOf(std::string_view bytes, std::size_t width) {
        std::string text;
        const auto unit = [&](std::size_t place) {
            std::uint32_t code = 0;
            for (std::size_t index = place; index < place + width; ++index)
                code = code << 8U | static_cast<unsigned char>(index < bytes.size() ? bytes[index] : 0);
            return code;
        };
        for (std::size_t place = 0; place < bytes.size(); place += width) {
            std::uint32_t code = unit(place);
            if (isFirstHalf(code) && isSecondHalf(unit(place + width))) {
                place += width;
                code = joinedHalves(code, unit(place));
            }
            if (!appendCharacter(code, text))
                return {};
        }
        return text;
    }

    Value readContainer(unsigned kind, Offset place, Offset count, std::size_t depth) {
        if (depth > deepestNesting)
            return refuse(Fault::nestedTooDeeply);
        if (kind == Kind::array)
            return readArray(place, count, depth);
        return kind == Kind::dictionary ? readDictionary(place, count, depth) : Value();
    }

    Value readArray(Offset place, Offset count, std::size_t depth) {
        Array elements;
        for (Offset index = 0; index < count; ++index) {
            elements.push_back(readReference(place, index, depth));
            if (!elements.back().exists())
                return {};
        }
        return elements;
    }

    Value readDictionary(Offset place, Offset count, std::size_t depth) {
        Dictionary entries;
        for (Offset index = 0; index < count; ++index) {
            const Value key = readReference(place, index, depth);
            if (key.as<std::string>() == nullptr)
                return {};
            Value value = readReference(place, count + index, depth);
            if (!value.exists())
                return {};
            entries.insert_or_assign(*key.as<std::string>(), std::move(value));
        }
        return entries;
    }

    Value readReference(Offset place, Offset index, std::size_t depth) {
        const auto object = number(place + index * referenceSize_, referenceSize_);
        return object ? readObject(*object, depth) : Value();
    }

    /// Counts memory that the list needs; false when it would be too much.
    bool spend(std::size_t size) {
        if (size > largestList - spent_)
            return refuse(Fault::tooLarge).exists();
        spent_ += size;
        return true;
    }

    Value refuse(Fault fault) {
        if (!fault_)
            fault_ = fault;
        return {};
    }

    std::string_view bytes_;
    Offset offsetSize_ = 0;
    Offset referenceSize_ = 0;
    Offset objects_ = 0;
    Offset table_ = 0;
    std::size_t spent_ = 0;
    std::optional<Fault> fault_;
};

} // namespace

Parsed parsedBinary(std::string_view bytes) {
    return BinaryReader(bytes).read();
}

} // namespace qbsp::propertylists
