#pragma once

#include "simulated/PaneSession.h"

namespace qbsp::simulated {

/// Notes the pane's fields and what its connected controls hold, a line each, in the transcript.
void writeState(PaneSession& session);

/// Notes what is stored: the host's defaults, the preferences domains, the property lists on the disk.
void writeStores(SimulatedPlatform& platform);

} // namespace qbsp::simulated
