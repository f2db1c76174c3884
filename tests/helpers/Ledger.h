#pragma once

#include "Stage.h"
#include "simulated/Json.h"

#include <map>
#include <string>
#include <string_view>

namespace qbsp {

/// The values of each store by key, as JSON. A store is a domain, or a file of which every key is one.
using Stores = std::map<std::string, std::map<std::string, std::string>>;

/// What the host's defaults are called among the stores.
inline constexpr const char* hostsDefaults = "the host's defaults";

/// What a store keeps when its process ends, reckoned from the calls that the transcript shows and from
/// nothing else: what was set is kept once it was synchronized, a file as soon as it was written.
class Ledger {
public:
    /// Takes note of a call.
    void read(std::string_view call) {
        if (call.starts_with("NSUserDefaults set"))
            setInDefaults(arguments(call));
        else if (call == "NSUserDefaults synchronize() -> true")
            kept_[hostsDefaults] = set_[hostsDefaults];
        else if (call.starts_with("CFPreferencesSetAppValue("))
            setInDomain(arguments(call));
        else if (call.starts_with("CFPreferencesSetValue("))
            setInDomain(withoutLast(withoutLast(arguments(call))));
        else if (call.starts_with("CFPreferencesSynchronize("))
            synchronize(withoutLast(withoutLast(arguments(call))));
        else if (call.starts_with("NSDictionary writeToURL:atomically:(") && call.ends_with(" -> true"))
            write(withoutLast(arguments(call.substr(0, call.rfind(" -> ")))));
    }

    /// Another process stores a value, which is kept at once.
    void put(const std::string& store, const std::string& key, const platform::Value& value) {
        change(set_[store], key, simulated::json(value));
        change(kept_[store], key, simulated::json(value));
    }

    /// The process ends.
    void crash() { set_ = kept_; }

    /// The value that is kept; "null" when there is none.
    [[nodiscard]] std::string kept(const std::string& store, const std::string& key) const {
        const auto values = kept_.find(store);
        if (values == kept_.end())
            return "null";
        const auto value = values->second.find(key);
        return value == values->second.end() ? "null" : value->second;
    }

    /// All that is kept; stores without a value are left out.
    [[nodiscard]] Stores kept() const {
        Stores stores = kept_;
        std::erase_if(stores, [](const auto& store) { return store.second.empty(); });
        return stores;
    }

private:
    using Values = std::map<std::string, std::string>;
    static constexpr std::string_view comma = ", ";

    [[nodiscard]] static std::string_view arguments(std::string_view call) {
        const auto begin = call.find('(') + 1;
        return call.substr(begin, call.rfind(')') - begin);
    }

    [[nodiscard]] static std::string_view withoutLast(std::string_view arguments) {
        return arguments.substr(0, arguments.rfind(comma));
    }

    [[nodiscard]] static std::string_view last(std::string_view arguments) {
        const auto found = arguments.rfind(comma);
        return found == std::string_view::npos ? arguments : arguments.substr(found + comma.size());
    }

    /// The text between quotation marks. No name of a key, a domain or a file needs an escape.
    [[nodiscard]] static std::string unquoted(std::string_view text) {
        return std::string(text.substr(1, text.size() - 2));
    }

    static void change(Values& values, const std::string& key, std::string_view value) {
        if (value == "null")
            values.erase(key);
        else
            values.insert_or_assign(key, std::string(value));
    }

    void setInDefaults(std::string_view arguments) {
        change(set_[hostsDefaults], unquoted(last(arguments)), withoutLast(arguments));
    }

    void setInDomain(std::string_view arguments) {
        const auto keysEnd = arguments.find(comma);
        const std::string_view value = withoutLast(arguments).substr(keysEnd + comma.size());
        change(set_[unquoted(last(arguments))], unquoted(arguments.substr(0, keysEnd)), value);
    }

    void synchronize(std::string_view domain) { kept_[unquoted(domain)] = set_[unquoted(domain)]; }

    void write(std::string_view arguments) {
        const std::string file = unquoted(last(arguments));
        set_[file] = kept_[file] = {{"", std::string(withoutLast(arguments))}};
    }

    Stores set_;
    Stores kept_;
};

} // namespace qbsp
