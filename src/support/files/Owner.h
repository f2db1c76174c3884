#pragma once

#include <string>
#include <string_view>

namespace files {

/// This process as a text for names of files that go with it: no other process of this machine has it, now or
/// later.
[[nodiscard]] std::string thisProcess();

/// What is known of a process from such a text.
enum class Life {
    alive,
    ended,
    unknown, ///< it belongs to another machine, another container, or to the time before the machine was
             ///< started
};

/// Whether the process of that text is alive; unknown for any other text.
[[nodiscard]] Life lifeOf(std::string_view process);

} // namespace files
