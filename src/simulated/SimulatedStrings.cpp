#include "simulated/SimulatedStrings.h"

#include <bit>
#include <cstddef>
#include <stdexcept>

namespace qbsp::simulated {

namespace {

/// Takes the first code point off the text, which is well-formed UTF-8 and not empty.
char32_t takeCodePoint(std::string_view& text) {
    const auto lead = static_cast<unsigned char>(text.front());
    const auto ones = static_cast<std::size_t>(std::countl_one(lead));
    const std::size_t length = std::min(ones == 0 ? std::size_t{1} : ones, text.size());
    char32_t codePoint = ones == 0 ? lead : lead & (0x7FU >> ones);
    for (const char continuation : text.substr(1, length - 1))
        codePoint = (codePoint << 6U) | (static_cast<unsigned char>(continuation) & 0x3FU);
    text.remove_prefix(length);
    return codePoint;
}

} // namespace

SimulatedStrings::SimulatedStrings() : unicode_(newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr)) {
    if (unicode_ == nullptr)
        throw std::runtime_error("the C.UTF-8 locale is missing");
}

SimulatedStrings::~SimulatedStrings() {
    freelocale(unicode_);
}

std::weak_ordering SimulatedStrings::caseInsensitiveCompare(std::string_view receiver,
                                                            std::string_view other) const {
    const auto takeLowered = [this](std::string_view& text) {
        return towlower_l(static_cast<wint_t>(takeCodePoint(text)), unicode_);
    };
    while (!receiver.empty() && !other.empty()) {
        const auto order = takeLowered(receiver) <=> takeLowered(other);
        if (std::is_neq(order))
            return order;
    }
    return receiver.size() <=> other.size();
}

} // namespace qbsp::simulated
