#pragma once

#include "Ledger.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <functional>
#include <optional>

namespace qbsp {

/// A pane that is shown, in a process that may end before any of its calls to the platform. Another process
/// then finds what the stores have kept, and shows the pane again.
class MortalPane {
public:
    /// Starts a process in that world, whose stores are empty.
    explicit MortalPane(const simulated::World& world) { start(world); }

    [[nodiscard]] Stage& stage() { return *stage_; }

    [[nodiscard]] const Ledger& ledger() const { return ledger_; }

    /// Another process stores a value, in the host's defaults or in a Sorter's domain.
    void put(const std::string& store, const std::string& key, const platform::Value& value) {
        simulated::World& world = stage_->world;
        (store == hostsDefaults ? world.defaults : world.domains[store]).put(key, value);
        ledger_.put(store, key, value);
    }

    /// Acts in a process that lives on.
    void act(const std::function<void(Stage&)>& action) {
        action(*stage_);
        readCalls();
    }

    /// Acts in a process that ends before the call of that number, counted from 0, or else after the last
    /// one, and starts the next one. False when there was no such call.
    bool actAndCrash(const std::function<void(Stage&)>& action, std::size_t number) {
        std::optional<simulated::World> remains;
        std::size_t calls = 0;
        stage_->platform.transcript.beforeEachOperation([&] {
            if (calls++ == number)
                remains = end();
        });
        action(*stage_);
        stage_->platform.transcript.beforeEachOperation(nullptr);
        const bool crashed = remains.has_value();
        start(crashed ? *remains : end());
        return crashed;
    }

private:
    void readCalls() {
        for (const std::string& call : stage_->operations())
            ledger_.read(call);
    }

    /// What the process leaves behind, when it ends now.
    [[nodiscard]] simulated::World end() {
        readCalls();
        EXPECT_EQ(keptIn(stage_->world), ledger_.kept());
        ledger_.crash();
        simulated::World remains = stage_->world;
        reopen(remains.defaults);
        for (auto& [identifier, domain] : remains.domains)
            reopen(domain);
        return remains;
    }

    void start(const simulated::World& world) {
        stage_.emplace();
        stage_->world = world;
        act([](Stage& stage) {
            std::ignore = stage.session.create();
            stage.session.loadView();
            stage.pane().willSelect();
        });
        expectTheListThatWasKept();
    }

    /// The rows that are shown are those that the edition's domain has kept.
    void expectTheListThatWasKept() {
        const Stage& stage = *stage_;
        const auto flags = platform::entry(
            stage_->world.domains[stage_->world.pro ? full : solo].seenByOthers(), hideListKey);
        const auto* const list = flags.as<platform::Dictionary>();
        if (list == nullptr)
            return;
        const auto& rows = stage.pane().tableArray().records();
        ASSERT_EQ(rows.size(), list->size());
        for (const auto& row : rows)
            EXPECT_EQ(row.hideApp.boolValue(), platform::entry(*list, std::string(row.appName)).boolValue())
                << row.appName;
    }

    static void reopen(simulated::Store& store) {
        simulated::Store reopened;
        for (const auto& [key, value] : store.seenByOthers())
            reopened.put(key, value);
        store = reopened;
    }

    [[nodiscard]] static Stores keptIn(const simulated::World& world) {
        Stores stores;
        keep(stores, hostsDefaults, world.defaults.seenByOthers());
        for (const auto& [identifier, domain] : world.domains)
            keep(stores, identifier, domain.seenByOthers());
        for (const auto& [path, contents] : world.disk.propertyLists())
            stores[path].emplace("", simulated::json(contents));
        return stores;
    }

    static void keep(Stores& stores, const std::string& name, const platform::Dictionary& contents) {
        for (const auto& [key, value] : contents)
            stores[name].emplace(key, simulated::json(value));
    }

    std::optional<Stage> stage_;
    Ledger ledger_;
};

} // namespace qbsp
