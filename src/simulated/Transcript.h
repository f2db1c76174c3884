#pragma once

#include <cstddef>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace qbsp::simulated {

/// Every operation that was asked of the simulated platform, in order, a line each. It also decides which one
/// fails, so that whatever is asked of the platform can be made to fail.
class Transcript {
public:
    /// True when the operation at hand is the one that fails; asked once at the start of each.
    [[nodiscard]] bool fails();

    /// Writes an operation down: its receiver and selector, and its arguments as JSON.
    void told(std::string_view operation, std::initializer_list<std::string> arguments);

    /// Writes an operation down with its answer as JSON.
    void answered(std::string_view operation, std::initializer_list<std::string> arguments,
                  std::string_view answer);

    /// Writes a line that is no operation.
    void note(std::string line) { lines_.push_back(std::move(line)); }

    /// From now on the n-th operation, counted from 1, fails; all others work.
    void failOperation(std::size_t number);

    /// True when the operation that was to fail has come.
    [[nodiscard]] bool hasFailed() const { return failing_ && operations_ >= *failing_; }

    /// The lines so far, and none of them from now on.
    [[nodiscard]] std::vector<std::string> take();

private:
    std::vector<std::string> lines_;
    std::size_t operations_ = 0;
    std::optional<std::size_t> failing_;
};

} // namespace qbsp::simulated
