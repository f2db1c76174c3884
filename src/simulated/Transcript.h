#pragma once

#include <cstddef>
#include <functional>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace qbsp::simulated {

/// Every operation of the simulated platform that was called, in order, a line each. It also decides which
/// call fails, so that each of them can be made to fail.
class Transcript {
public:
    /// True when the current operation is the one that fails. Each operation calls this once, at its start.
    [[nodiscard]] bool fails();

    /// Records a call: the receiver and selector, and the arguments as JSON.
    void record(std::string_view operation, std::initializer_list<std::string> arguments);

    /// Records a call with its result as JSON.
    void record(std::string_view operation, std::initializer_list<std::string> arguments,
                std::string_view result);

    /// Adds a line that is no operation.
    void note(std::string line) { lines_.push_back(std::move(line)); }

    /// From now on the n-th operation, counted from 1, fails; all others work.
    void failOperation(std::size_t number);

    /// From now on calls the function, if there is one, as each operation begins, before anything of it is
    /// done.
    void beforeEachOperation(std::function<void()> function) { beforeEach_ = std::move(function); }

    /// True when the operation that was to fail has been called.
    [[nodiscard]] bool hasFailed() const { return failing_ && operations_ >= *failing_; }

    /// Returns the lines so far and removes them.
    [[nodiscard]] std::vector<std::string> take();

private:
    std::vector<std::string> lines_;
    std::size_t operations_ = 0;
    std::optional<std::size_t> failing_;
    std::function<void()> beforeEach_;
};

} // namespace qbsp::simulated
