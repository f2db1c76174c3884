#pragma once

#include "appkit/stores/gnustep/StoredLists.h"

namespace qbsp::appkit {

/// Keeps GNUstep's defaults, from now on and everywhere in this process, from waiting for a lock that cannot
/// be taken, and from reading files that they would take for empty or be ended by. What they hold back they
/// do later. To be called once; the lists, which say where the files are, must live as long as the process.
void boundStandardDefaults(StoredLists& lists);

} // namespace qbsp::appkit
