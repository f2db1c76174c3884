#pragma once

#include "platform/StringComparison.h"

#include <clocale>
#include <cwctype>
#include <memory>

namespace qbsp::simulated {

/// Compares code point by code point, each in its simple lower-case form. Accents count, and nothing is
/// normalised.
class SimulatedStrings final : public platform::StringComparison {
public:
    SimulatedStrings();
    ~SimulatedStrings() override;

    SimulatedStrings(const SimulatedStrings&) = delete;
    SimulatedStrings& operator=(const SimulatedStrings&) = delete;
    SimulatedStrings(SimulatedStrings&&) = delete;
    SimulatedStrings& operator=(SimulatedStrings&&) = delete;

    std::weak_ordering caseInsensitiveCompare(std::string_view receiver,
                                              std::string_view other) const override;

private:
    locale_t unicode_;
};

} // namespace qbsp::simulated
