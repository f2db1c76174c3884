#include "propertylists/PropertyListAssembler.h"

#include <utility>

namespace qbsp::propertylists {

using platform::Array;
using platform::Dictionary;
using platform::Value;

bool PropertyListAssembler::begin(Array array) {
    return beginContainer({std::move(array), std::nullopt});
}

bool PropertyListAssembler::begin(Dictionary dictionary) {
    return beginContainer({std::move(dictionary), std::nullopt});
}

bool PropertyListAssembler::endArray() {
    return !isOutside() && !isInDictionary() ? end() : refuse(Fault::notAPropertyList);
}

bool PropertyListAssembler::endDictionary() {
    return isInDictionary() && !open_.back().key ? end() : refuse(Fault::notAPropertyList);
}

bool PropertyListAssembler::addKey(std::string key) {
    if (!isInDictionary() || open_.back().key)
        return refuse(Fault::notAPropertyList);
    open_.back().key = std::move(key);
    return !isRefused();
}

bool PropertyListAssembler::add(Value value) {
    if (!value.exists())
        return refuse(Fault::notAPropertyList);
    if (mayAdd())
        place(std::move(value));
    return !isRefused();
}

bool PropertyListAssembler::refuse(Fault fault) {
    if (!fault_)
        fault_ = fault;
    return false;
}

bool PropertyListAssembler::isInDictionary() const {
    return !isOutside() && std::holds_alternative<Dictionary>(open_.back().contents);
}

Parsed PropertyListAssembler::finished() {
    if (!isOutside() || !root_.exists())
        refuse(Fault::notAPropertyList);
    return fault_ ? Parsed(*fault_) : Parsed(std::move(root_));
}

bool PropertyListAssembler::mayAdd() {
    if (isOutside() && root_.exists())
        return refuse(Fault::moreThanOneRoot);
    if (isInDictionary() && !open_.back().key)
        return refuse(Fault::notAPropertyList);
    return !isRefused();
}

bool PropertyListAssembler::beginContainer(Container container) {
    if (!mayAdd())
        return false;
    if (open_.size() == deepestNesting)
        return refuse(Fault::nestedTooDeeply);
    open_.push_back(std::move(container));
    return true;
}

bool PropertyListAssembler::end() {
    Value value =
        std::visit([](auto& contents) { return Value(std::move(contents)); }, open_.back().contents);
    open_.pop_back();
    place(std::move(value));
    return !isRefused();
}

void PropertyListAssembler::place(Value value) {
    if (isOutside()) {
        root_ = std::move(value);
        return;
    }
    Container& container = open_.back();
    if (auto* array = std::get_if<Array>(&container.contents))
        array->push_back(std::move(value));
    else
        std::get<Dictionary>(container.contents)
            .insert_or_assign(*std::exchange(container.key, {}), std::move(value));
}

} // namespace qbsp::propertylists
