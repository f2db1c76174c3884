#pragma once

#include "platform/Preferences.h"
#include "platform/UserDefaults.h"

#include <functional>
#include <memory>
#include <string>

namespace qbsp::contracts {

/// The stores of this process, and another process that reads and writes them too.
class StoresStage {
public:
    static std::unique_ptr<StoresStage> simulated();
    static std::unique_ptr<StoresStage> appKit();

    virtual ~StoresStage() = default;

    [[nodiscard]] virtual platform::Preferences& preferences() = 0;
    [[nodiscard]] virtual platform::UserDefaults& userDefaults() = 0;

    /// Another process sets a value, and flushes it.
    virtual void otherProcessSets(const std::string& domain, const std::string& key,
                                  const platform::Value& value) = 0;

    /// Another process sets a value in the defaults of the host, and flushes it.
    virtual void otherProcessSetsDefault(const std::string& key, const platform::Value& value) = 0;

    [[nodiscard]] virtual platform::Dictionary domainSeenByOthers(const std::string& domain) = 0;
    [[nodiscard]] virtual platform::Dictionary defaultsSeenByOthers() = 0;

    /// Sets and then flushes while nothing can be written; returns what the flush returned.
    [[nodiscard]] virtual bool flushInVain(const std::function<void()>& set,
                                           const std::function<bool()>& flush) = 0;
};

} // namespace qbsp::contracts
