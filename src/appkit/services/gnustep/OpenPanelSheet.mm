#include "appkit/services/OpenPanelSheet.h"

#include <utility>

namespace qbsp::appkit {

namespace {

/// The layout of a block, written by hand because g++ has no blocks. It must not be copied.
struct ResultBlock {
    void* isa;
    int flags;
    int reserved;
    void (*invoke)(void* block, NSInteger result);
    std::function<void(std::int64_t)> handler;
};

void invokeHandler(void* block, NSInteger result) {
    static_cast<ResultBlock*>(block)->handler(result);
}

} // namespace

void showSheet(NSOpenPanel* panel, NSWindow* window, std::function<void(std::int64_t)> handler) {
    ResultBlock block{nullptr, 0, 0, invokeHandler, std::move(handler)};
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): a block is anything with its layout.
    auto* handlerBlock = reinterpret_cast<GSSavePanelCompletionHandler>(&block);
    [panel beginSheetModalForWindow:window completionHandler:handlerBlock];
}

} // namespace qbsp::appkit
