#pragma once

namespace qbsp::recorder {

/// Has the X server tell an application that a held key was pressed again without telling that it was
/// released before. GNUstep hides such a release only when the press has arrived with it. Takes an open
/// connection (a Display*), or none and does nothing.
void omitReleasesOfHeldKeys(void* display);

} // namespace qbsp::recorder
