#include "appkit/services/OpenPanelSheet.h"

namespace qbsp::appkit {

void showSheet(NSOpenPanel* panel, NSWindow* window, std::function<void(std::int64_t)> handler) {
    void (^completionHandler)(NSInteger) = ^(NSInteger result) {
      handler(result);
    };
    if (window == nil)
        [panel beginWithCompletionHandler:completionHandler];
    else
        [panel beginSheetModalForWindow:window completionHandler:completionHandler];
}

} // namespace qbsp::appkit
