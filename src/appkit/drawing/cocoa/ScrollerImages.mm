#include "appkit/drawing/ScrollerImages.h"

namespace qbsp::appkit {

// The system's scrollers are quick to make.
void nameScrollerImages() {}

} // namespace qbsp::appkit
