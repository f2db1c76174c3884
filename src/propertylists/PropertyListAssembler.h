#pragma once

#include "propertylists/ParsedPropertyList.h"

#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace qbsp::propertylists {

/// Puts a property list together from its parts, in the order in which they are read. Once a part does not
/// fit, all that follow are refused.
class PropertyListAssembler {
public:
    /// A container begins.
    bool begin(platform::Array);
    bool begin(platform::Dictionary);

    /// The innermost container ends; true when it is one of that kind.
    bool endArray();
    bool endDictionary();

    /// The key of what follows in a dictionary.
    bool addKey(std::string key);

    /// A leaf; no value is refused.
    bool add(platform::Value value);

    /// The parts are no property list.
    bool refuse(Fault fault);

    [[nodiscard]] bool isRefused() const { return fault_.has_value(); }

    /// Whether no container has begun that has not ended.
    [[nodiscard]] bool isOutside() const { return open_.empty(); }

    /// The innermost container is a dictionary.
    [[nodiscard]] bool isInDictionary() const;

    /// The list, once all parts are in.
    [[nodiscard]] Parsed finished();

private:
    struct Container {
        std::variant<platform::Array, platform::Dictionary> contents;
        std::optional<std::string> key; ///< of the value that follows, in a dictionary
    };

    [[nodiscard]] bool mayAdd();
    bool beginContainer(Container container);
    bool end();
    void place(platform::Value value);

    std::vector<Container> open_;
    platform::Value root_;
    std::optional<Fault> fault_;
};

} // namespace qbsp::propertylists
