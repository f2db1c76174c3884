#include "appkit/stores/OnceSaved.h"

namespace qbsp::appkit {

// The system keeps what was set, and writes it of its own accord.
void onceSaved(const std::string&, std::function<void()>) {}

} // namespace qbsp::appkit
