#pragma once

namespace qbsp::recorder {

/// Makes the X server repeat a held key without a release before each press. GNUstep hides such a release
/// only when the press arrives together with it. Takes an open connection (a Display*); does nothing with
/// null.
void omitReleasesOfHeldKeys(void* display);

} // namespace qbsp::recorder
