#import "appkit/drawing/CheckBoxImages.h"

namespace qbsp::appkit {

// The system's own box fits.
void setCheckBoxImages(NSButtonCell*, NSFont*) {}

} // namespace qbsp::appkit
