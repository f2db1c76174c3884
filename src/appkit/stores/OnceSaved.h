#pragma once

#include <functional>
#include <string>

namespace qbsp::appkit {

/// Has the function called once all that waits to be saved now was saved, in the place of an earlier one of
/// that name. When nothing waits it is not called: what others are told of is stored then.
void onceSaved(const std::string& name, std::function<void()> function);

} // namespace qbsp::appkit
