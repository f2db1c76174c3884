#pragma once

#include "platform/Value.h"
#include "simulated/Decimal.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace qbsp::simulated {

/// The words of a scenario's line, taken one by one from the front. Every operation throws ScenarioError for
/// a word that is missing or not of the kind asked for.
class Arguments {
public:
    /// A line without outer spaces.
    explicit Arguments(std::string_view line) : rest_(line) {}

    /// The next word as it stands.
    [[nodiscard]] std::string word();

    /// One of these words.
    [[nodiscard]] std::string oneOf(const std::vector<std::string_view>& words);

    [[nodiscard]] bool boolean();

    /// A text, in JSON when it begins with a quote.
    [[nodiscard]] std::string text();

    /// A text, or the word null.
    [[nodiscard]] std::optional<std::string> textOrNull();

    /// An identifier, or the word full, solo or embedded for one of the Sorters.
    [[nodiscard]] std::string identifier();

    /// An identifier, or the word null.
    [[nodiscard]] std::optional<std::string> identifierOrNull();

    /// Whole numbers, in decimal or 0x form.
    [[nodiscard]] std::int64_t signed64();
    [[nodiscard]] std::uint64_t unsigned64();
    [[nodiscard]] std::int32_t signed32();

    [[nodiscard]] Decimal seconds();

    /// The whole rest of the line as one JSON value.
    [[nodiscard]] platform::Value value();

    /// True when nothing is left.
    [[nodiscard]] bool atEnd() const { return rest_.empty(); }

    /// Throws when anything is left.
    void finish() const;

private:
    /// A word, and whether it was written as a JSON string.
    struct Token {
        std::string text;
        bool quoted = false;
    };

    [[nodiscard]] Token token();
    [[nodiscard]] Token quotedToken();

    std::string_view rest_;
};

} // namespace qbsp::simulated
