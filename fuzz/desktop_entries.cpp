// Any text is read as a desktop entry or as none; and what was read, or comes from elsewhere, is written so
// that it is read again as it was.

#include "Input.h"
#include "Require.h"
#include "xdg/DesktopEntry.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace {

using qbsp::fuzz::require;

void checkRoundTrip(const xdg::DesktopEntry& entry) {
    const auto again = xdg::parsedDesktopEntry(xdg::desktopEntryText(entry));
    require(again.has_value(), "an entry that was written is read");
    require(again->name == entry.name, "the name is read as it was written");
    require(again->program == entry.program, "the program is read as it was written");
    require(again->enabled, "an entry that was written is enabled");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(qbsp::fuzz::textOf(data, size));
    if (const auto entry = xdg::parsedDesktopEntry(text))
        checkRoundTrip(*entry);
    const std::size_t half = std::min(text.find('\n'), text.size());
    checkRoundTrip({text.substr(0, half), text.substr(half)});
    return 0;
}
