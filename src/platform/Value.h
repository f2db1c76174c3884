#pragma once

#include "platform/Box.h"

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

namespace qbsp::platform {

class Value;

using Array = std::vector<Value>;
using Dictionary = std::map<std::string, Value>;

/// A moment, in seconds since the first of January 2001, 0:00 UTC.
struct Date {
    double secondsSinceReferenceDate = 0;
    friend bool operator==(const Date&, const Date&) = default;
};

using Data = std::vector<std::byte>;

/// A property-list value, or no value. It keeps the kind it was made with, so that what was not edited
/// is written back as it was read. One that was moved from is no value.
class Value {
    /// A kind larger than a number lies in a box, because each row of a long list has a value.
    template <class T>
    using Kept = std::conditional_t<(sizeof(T) > sizeof(double)), Box<T>, T>;

    using Kind = std::variant<std::monostate, bool, std::int32_t, std::uint32_t, std::int64_t, std::uint64_t,
                              double, Kept<std::string>, Date, Kept<Data>, Kept<Array>, Kept<Dictionary>>;

public:
    Value() = default;

    /// A value of any of the kinds; the constraint leaves copying and moving a Value alone.
    template <class T>

    // NOLINTNEXTLINE(bugprone-forwarding-reference-overload)
    requires(!std::same_as<std::remove_cvref_t<T>, Value> && std::constructible_from<Kind, T>) Value(T&& kind)
        : kind_(std::forward<T>(kind)) {}

    Value(const Value&) = default;

    Value(Value&& other) noexcept : kind_(std::exchange(other.kind_, {})) {}

    Value& operator=(const Value&) = default;

    Value& operator=(Value&& other) noexcept {
        kind_ = std::exchange(other.kind_, {});
        return *this;
    }

    ~Value() = default;

    [[nodiscard]] bool exists() const { return !std::holds_alternative<std::monostate>(kind_); }

    /// The number as 32 bits: a Boolean is 0 or 1, a real loses its fraction, a wider number its high bits; a
    /// string's leading digits, held within 32 bits. Any other kind, and no value, is 0.
    [[nodiscard]] std::int32_t intValue() const;

    /// The bits of intValue(), unsigned.
    [[nodiscard]] std::uint32_t unsignedIntValue() const;

    /// A number is true unless it is 0; a string when it begins with Y, y, T, t or a number other than 0. Any
    /// other kind, and no value, is false.
    [[nodiscard]] bool boolValue() const;

    /// The value as this kind, or null when it is of another.
    template <class T>
    [[nodiscard]] const T* as() const {
        const auto* const kept = std::get_if<Kept<T>>(&kind_);
        return kept == nullptr ? nullptr : &unboxed(*kept);
    }

    /// What the visitor returns for the value as its kind; no value is std::monostate.
    template <class Visitor>
    auto visit(Visitor&& visitor) const {
        const auto unboxing = [&](const auto& kept) {
            return visitor(unboxed(kept));
        };
        // A visitor that throws counts as a branch in gcov, where it is not run as well.
        return std::visit(unboxing, kind_); // GCOVR_EXCL_BR_LINE
    }

    friend bool operator==(const Value&, const Value&) = default;

private:
    template <class T>
    static const T& unboxed(const T& kept) {
        return kept;
    }

    template <class T>
    static const T& unboxed(const Box<T>& kept) {
        return *kept;
    }

    Kind kind_;
};

static_assert(sizeof(Value) <= 16);

/// The entry of that name; no value when there is none.
[[nodiscard]] Value entry(const Dictionary& dictionary, const std::string& name);

/// The entry of that name when it is a string.
[[nodiscard]] std::optional<std::string> stringEntry(const Dictionary& dictionary, const std::string& name);

} // namespace qbsp::platform
