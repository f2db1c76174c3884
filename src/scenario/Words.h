#pragma once

#include "scenario/Decimal.h"

#include <nlohmann/json_fwd.hpp>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace qbsp::scenario {

/// One argument of a command.
struct Argument {
    std::string text;
    bool quoted = false; ///< written as a JSON string, so that none of its words is special
};

/// The words of a command, taken one by one from the front. Every operation throws ScenarioError when there
/// is none left or the next is not of the kind asked for.
class Words {
public:
    /// A line without outer spaces, which must outlive the words.
    explicit Words(std::string_view line) : rest_(line) {}

    /// The next argument, whether it is written as a word or as a JSON string.
    [[nodiscard]] Argument argument();

    /// The next word as it stands; a JSON string is refused.
    [[nodiscard]] std::string word();

    /// One of these words.
    [[nodiscard]] std::string oneOf(const std::vector<std::string_view>& words);

    /// The word true or false.
    [[nodiscard]] bool boolean();

    /// A text, in JSON when it begins with a quote.
    [[nodiscard]] std::string text();

    /// A text, or the word null.
    [[nodiscard]] std::optional<std::string> textOrNull();

    /// Whole numbers, in decimal or 0x form, a minus sign before either.
    [[nodiscard]] std::int64_t signed64();
    [[nodiscard]] std::uint64_t unsigned64();
    [[nodiscard]] std::int32_t signed32();

    /// A number of seconds: digits, with a point between them or without one.
    [[nodiscard]] Decimal seconds();

    /// The whole rest of the line as one JSON value.
    [[nodiscard]] nlohmann::json value();

    /// True when nothing is left.
    [[nodiscard]] bool atEnd() const { return rest_.empty(); }

    /// Throws ScenarioError when anything is left.
    void finish() const;

private:
    [[nodiscard]] Argument quotedArgument();

    std::string_view rest_;
};

} // namespace qbsp::scenario
