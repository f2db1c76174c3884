#include "appkit/services/Dialogs.h"

#include "appkit/bridge/Retained.h"
#include "appkit/bridge/Strings.h"
#include "appkit/bridge/URLs.h"
#include "appkit/services/DelayedMessage.h"
#include "appkit/services/OpenPanelSheet.h"
#include "appkit/services/Window.h"

#import <AppKit/AppKit.h>

#include <tuple>

namespace qbsp::appkit {

namespace {

NSWindow* nsWindow(platform::Window* window) {
    auto* appKitWindow = dynamic_cast<AppKitWindow*>(window);
    return appKitWindow == nullptr ? nil : appKitWindow->nsWindow();
}

class AppKitOpenPanel final : public platform::OpenPanel {
public:
    AppKitOpenPanel(NSOpenPanel* panel, id owner) : panel_(panel), owner_(owner) {}

    void setCanChooseDirectories(bool canChoose) override {
        [panel_.get() setCanChooseDirectories:canChoose ? YES : NO];
    }

    void setAllowsMultipleSelection(bool allows) override {
        [panel_.get() setAllowsMultipleSelection:allows ? YES : NO];
    }

    void setAllowedFileTypes(const std::vector<std::string>& extensions) override {
        NSMutableArray* types = [NSMutableArray arrayWithCapacity:extensions.size()];
        for (const std::string& extension : extensions)
            [types addObject:nsString(extension)];
        [panel_.get() setAllowedFileTypes:types];
    }

    void setDirectoryURL(const platform::URL& folder) override {
        [panel_.get() setDirectoryURL:nsURL(folder)];
    }

    void beginSheetModalForWindow(platform::Window* window,
                                  std::function<void(std::int64_t)> completionHandler) override;

    std::optional<platform::URL> chosenURL() const override {
        // The system shares one panel, which still has the previous choice.
        return *isChosen_ ? urlFromNSURL([[panel_.get() URLs] lastObject]) : std::nullopt;
    }

private:
    Retained<NSOpenPanel*> panel_;
    Retained<id> owner_;
    std::shared_ptr<bool> isChosen_ = std::make_shared<bool>(false);
};

void AppKitOpenPanel::beginSheetModalForWindow(platform::Window* window,
                                               std::function<void(std::int64_t)> completionHandler) {
    const Retained<NSOpenPanel*> panel = panel_;
    const Retained<NSWindow*> sheetWindow(nsWindow(window));
    const Retained<id> owner = owner_;
    const auto isChosen = isChosen_;
    // The handler, too, keeps the owner alive while the panel is shown.
    const auto handler = [=](std::int64_t result) {
        std::ignore = owner;
        *isChosen = result == platform::NSOKButton;
        completionHandler(result);
    };
    const auto show = [=] {
        showSheet(panel.get(), sheetWindow.get(), handler);
    };
    // The panel may run modally. Shown from the run loop, it still reports its result after this has
    // returned.
    sendAfterDelay(show, 0, owner_.get());
}

} // namespace

std::shared_ptr<platform::OpenPanel> AppKitOpenPanels::openPanel() {
    return std::make_shared<AppKitOpenPanel>([NSOpenPanel openPanel], owner_);
}

namespace {

class AppKitAlert final : public platform::Alert {
public:
    void setAlertStyle(platform::AlertStyle style) override {
        [alert_.get() setAlertStyle:static_cast<NSAlertStyle>(style)];
    }

    void setMessageText(std::string_view text) override { [alert_.get() setMessageText:nsString(text)]; }

    void setInformativeText(std::string_view text) override {
        [alert_.get() setInformativeText:nsString(text)];
    }

    void addButtonWithTitle(std::string_view title) override {
        [alert_.get() addButtonWithTitle:nsString(title)];
    }

    std::int64_t runModal() override { return [alert_.get() runModal]; }

private:
    Retained<NSAlert*> alert_ = Retained<NSAlert*>::adopt([[NSAlert alloc] init]);
};

} // namespace

std::unique_ptr<platform::Alert> AppKitAlerts::makeAlert() {
    return std::make_unique<AppKitAlert>();
}

} // namespace qbsp::appkit
