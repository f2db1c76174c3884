#pragma once

#include "platform/Value.h"

#include <string>

/// GNUstep's own view of the user's defaults in this process: what other code of the host reads and sets.
namespace qbsp::appkit {

/// Has the standard user defaults of this process return the value for the key, which is not saved yet.
void showInStandardDefaults(const std::string& key, const platform::Value& value);

/// Has the standard user defaults of this process read what the files hold now, and write what the host set
/// in them. When they cannot do that now, they do it later.
void bringStandardDefaultsUpToDate();

} // namespace qbsp::appkit
