#import "appkit/view/TableHeader.h"

namespace qbsp::appkit {

// They have the system's colors already.
void setUpHeader(NSTableView*) {}

} // namespace qbsp::appkit
