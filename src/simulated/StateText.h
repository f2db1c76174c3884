#pragma once

#include "simulated/PaneSession.h"

namespace qbsp::simulated {

/// Adds the pane's fields and what its connected controls show to the transcript, a line each.
void writeState(PaneSession& session);

/// Adds what is stored to the transcript: the host's defaults, the preferences domains, the property lists.
void writeStores(SimulatedPlatform& platform);

} // namespace qbsp::simulated
