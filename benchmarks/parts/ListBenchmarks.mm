#include "BenchedPane.h"
#import "FoundationList.h"
#include "Names.h"
#include "Syncs.h"

#include "appkit/bridge/Strings.h"
#include "appkit/services/gnustep/ComparedCharacters.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstdlib>
#include <iterator>
#include <malloc.h>

namespace benchmarks {

namespace {

using benchmark::State;

NSString* stored(Kind kind, std::size_t count) {
    return qbsp::appkit::nsString(storeList(namesOf(kind, count)).string());
}

/// The file with a list of that kind and length, and a pool for what a benchmark makes meanwhile.
struct Stage {
    Stage(Kind kind, const State& state)
        : pool([[NSAutoreleasePool alloc] init]), count(static_cast<std::size_t>(state.range(0))),
          file(stored(kind, count)) {}

    ~Stage() { [pool release]; }

    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;

    NSAutoreleasePool* pool;
    std::size_t count;
    NSString* file;
};

std::vector<std::string> storedOrder(Kind kind, const State& state) {
    std::vector<std::string> names = namesOf(kind, static_cast<std::size_t>(state.range(0)));
    std::ranges::sort(names);
    return names;
}

void expect(bool holds, State& state, const std::string& what) {
    if (!holds)
        state.SkipWithError(what.c_str());
}

// --- Show

void showInPane(State& state, Kind kind) {
    const Stage stage(kind, state);
    BenchedPane benched;
    for (auto _ : state)
        benched.pane().loadHideAppData();
    expect(benched.pane().tableArray().records().size() == stage.count, state, "not all rows are there");
}

void showByFoundation(State& state, Kind kind) {
    const Stage stage(kind, state);
    NSUInteger count = 0;
    for (auto _ : state) {
        NSMutableArray* rows = loadedByFoundation(stage.file);
        count = [rows count];
        [rows release];
    }
    expect(count == stage.count, state, "not all rows are there");
}

// --- Sort alone, of what is in the order in which it is stored

/// Sorts copies of the items again and again.
template <class Items>
void sortCopies(State& state, const Items& items) {
    for (auto _ : state) {
        state.PauseTiming();
        Items sorted = items;
        state.ResumeTiming();
        std::ranges::sort(sorted);
        benchmark::DoNotOptimize(sorted.data());
    }
}

// With the keys ready, as the adapter sorts them.
void sortKeysAndPlaces(State& state, Kind kind) {
    std::vector<std::pair<std::string, std::size_t>> keys;
    for (const std::string& name : storedOrder(kind, state))
        keys.emplace_back(qbsp::appkit::sortKey(name), keys.size());
    sortCopies(state, keys);
}

void sortKeys(State& state, Kind kind) {
    std::vector<std::string> keys;
    std::ranges::transform(storedOrder(kind, state), std::back_inserter(keys), qbsp::appkit::sortKey);
    sortCopies(state, keys);
}

// With making the keys.
void orderInPane(State& state, Kind kind) {
    const qbsp::appkit::AppKitStringComparison strings;
    const std::vector<std::string> names = storedOrder(kind, state);
    const std::vector<std::string_view> texts(names.begin(), names.end());
    for (auto _ : state)
        benchmark::DoNotOptimize(strings.order(texts).data());
}

void orderByFoundation(State& state, Kind kind) {
    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
    NSMutableArray* rows = [NSMutableArray array];
    for (const std::string& name : storedOrder(kind, state))
        [rows addObject:[[[FoundationRow alloc] initWithName:qbsp::appkit::nsString(name)
                                                        hide:[NSNumber numberWithBool:YES]] autorelease]];
    for (auto _ : state)
        [[NSMutableArray arrayWithArray:rows] sortUsingSelector:@selector(compareStringUsingSelector:)];
    [pool release];
}

// --- Look-up of a name that is not there

void findInPane(State& state, Kind kind) {
    const Stage stage(kind, state);
    BenchedPane benched;
    benched.pane().loadHideAppData();
    for (auto _ : state)
        benchmark::DoNotOptimize(benched.pane().indexOfAppInList("xxxxxxxxxx, which is not in the list"));
}

void findByFoundation(State& state, Kind kind) {
    const Stage stage(kind, state);
    NSMutableArray* rows = loadedByFoundation(stage.file);
    for (auto _ : state)
        benchmark::DoNotOptimize(foundByFoundation(rows, @"xxxxxxxxxx, which is not in the list"));
    [rows release];
}

// --- Save

/// Reports what of each iteration was the wait for the disk.
class SyncTime {
public:
    explicit SyncTime(State& state) : state_(state) {}

    ~SyncTime() {
        state_.counters["sync_time"] = {microsecondsInSyncs() - before_, benchmark::Counter::kAvgIterations};
    }

    SyncTime(const SyncTime&) = delete;
    SyncTime& operator=(const SyncTime&) = delete;

private:
    State& state_;
    double before_ = microsecondsInSyncs();
};

void saveInPane(State& state, Kind kind) {
    const Stage stage(kind, state);
    BenchedPane benched;
    benched.pane().loadHideAppData();
    bool hide = false;
    const SyncTime syncTime(state);
    for (auto _ : state) {
        benched.tickFirst(hide = !hide);
        benched.pane().willUnselect();
    }
    NSArray* rows = [loadedByFoundation(stage.file) autorelease];
    FoundationRow* first = [rows objectAtIndex:0];
    expect([rows count] == stage.count && [first->hideApp boolValue] == hide, state,
           "the list was not saved");
}

void saveByFoundation(State& state, Kind kind) {
    const Stage stage(kind, state);
    NSMutableArray* rows = loadedByFoundation(stage.file);
    FoundationRow* first = [rows objectAtIndex:0];
    NSString* failure = nil;
    bool hide = false;
    const SyncTime syncTime(state);
    for (auto _ : state) {
        [first->hideApp release];
        first->hideApp = [[NSNumber numberWithBool:hide = !hide] retain];
        failure = failure == nil ? failureOfSaveByFoundation(rows, stage.file) : failure;
    }
    [rows release];
    expect(failure == nil, state, qbsp::appkit::utf8(failure));
}

// --- The look for a running Sorter, at every save

void lookForSorter(State& state) {
    const qbsp::appkit::AppKitRunningApplications applications;
    for (auto _ : state) {
        NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
        benchmark::DoNotOptimize(applications.applicationIsRunning({"com.quarrybook.SoloSorter"}));
        [pool release];
    }
}

// --- Memory

double bytesInUse() {
    const auto heap = mallinfo2();
    return static_cast<double>(heap.uordblks + heap.hblkhd);
}

template <class Load>
void countBytes(State& state, Load load) {
    double bytes = 0;
    for (auto _ : state) {
        const double before = bytesInUse();
        load([&] { bytes = bytesInUse() - before; });
    }
    state.counters["bytes_per_row"] = bytes / static_cast<double>(state.range(0));
}

void memoryOfPane(State& state, Kind kind) {
    const Stage stage(kind, state);
    countBytes(state, [](auto loaded) {
        BenchedPane benched;
        benched.pane().loadHideAppData();
        loaded();
    });
}

void memoryOfFoundation(State& state, Kind kind) {
    const Stage stage(kind, state);
    countBytes(state, [&](auto loaded) {
        NSMutableArray* rows = loadedByFoundation(stage.file);
        loaded();
        [rows release];
    });
}

// --- Which of them, for which lists

using Function = void (*)(State&, Kind);

void add(const std::string& part, Kind kind, Function pane, Function foundation,
         std::initializer_list<std::int64_t> rows) {
    for (const auto& [who, function] : {std::pair{"pane", pane}, std::pair{"baseline", foundation}})
        for (const std::int64_t count : rows)
            benchmark::RegisterBenchmark((part + "|" + nameOf(kind) + "|" + who).c_str(), function, kind)
                ->Arg(count)
                ->Unit(benchmark::kMicrosecond);
}

} // namespace

void addListBenchmarks() {
    for (const Kind kind : {Kind::ascii, Kind::someNotAscii, Kind::notAscii, Kind::onePrefix, Kind::inOrder})
        add("show", kind, showInPane, showByFoundation, {10, 100, 1000, 10'000, 100'000});
    add("show", Kind::longNames, showInPane, showByFoundation, {10, 100, 1000});
    for (const Kind kind : {Kind::ascii, Kind::notAscii, Kind::onePrefix}) {
        add("sort", kind, sortKeysAndPlaces, sortKeys, {100'000});
        add("order", kind, orderInPane, orderByFoundation, {100'000});
    }
    for (const Kind kind : {Kind::ascii, Kind::notAscii})
        add("find", kind, findInPane, findByFoundation, {100, 10'000});
    for (const Kind kind : {Kind::ascii, Kind::notAscii})
        add("save", kind, saveInPane, saveByFoundation, {10, 100, 1000, 10'000, 100'000});
    benchmark::RegisterBenchmark("look for a running Sorter", lookForSorter)->Unit(benchmark::kMicrosecond);
    add("memory", Kind::ascii, memoryOfPane, memoryOfFoundation, {10'000, 100'000});
}

} // namespace benchmarks
