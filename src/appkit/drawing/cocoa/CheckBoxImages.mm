#import "appkit/drawing/CheckBoxImages.h"

namespace qbsp::appkit {

// The system's own box fits.
void makeCheckBox(NSButtonCell* cell, NSFont*) {
    [cell setButtonType:NSSwitchButton];
    [cell setImagePosition:NSImageLeft];
}

void makeBareCheckBox(NSButtonCell* cell, NSFont*) {
    [cell setButtonType:NSSwitchButton];
    [cell setImagePosition:NSImageOnly];
}

} // namespace qbsp::appkit
