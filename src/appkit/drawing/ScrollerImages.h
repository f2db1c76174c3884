#pragma once

namespace qbsp::appkit {

/// Makes the first scroller of a process quick to make. Call it before a scroller is made; later calls do
/// nothing.
void nameScrollerImages();

} // namespace qbsp::appkit
