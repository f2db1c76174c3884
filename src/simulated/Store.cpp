#include "simulated/Store.h"

namespace qbsp::simulated {

namespace {

void change(platform::Dictionary& dictionary, const std::string& key, const platform::Value& value) {
    if (value.exists())
        dictionary.insert_or_assign(key, value);
    else
        dictionary.erase(key);
}

} // namespace

void Store::set(const std::string& key, const platform::Value& value) {
    change(set_, key, value);
}

void Store::put(const std::string& key, const platform::Value& value) {
    change(set_, key, value);
    change(synchronized_, key, value);
}

} // namespace qbsp::simulated
