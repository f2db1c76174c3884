#pragma once

#include <compare>
#include <optional>
#include <string>
#include <string_view>

namespace qbsp::scenario {

/// A decimal number that is not negative, exact in every digit: moments and delays of a scenario's clock.
class Decimal {
public:
    Decimal() = default;

    /// The number that the digits, with a point between them or without one, spell; none for anything else.
    [[nodiscard]] static std::optional<Decimal> parse(std::string_view digits);

    /// The number whose shortest decimal form the double is. It must be finite and not negative.
    [[nodiscard]] static Decimal of(double number);

    /// The double nearest to it; infinite when it is too large for one.
    [[nodiscard]] double toDouble() const;

    [[nodiscard]] Decimal operator+(const Decimal& other) const;

    friend std::strong_ordering operator<=>(const Decimal& first, const Decimal& second);
    friend bool operator==(const Decimal&, const Decimal&) = default;

private:
    std::string whole_;    ///< digits without leading zeros
    std::string fraction_; ///< digits without trailing zeros
};

} // namespace qbsp::scenario
