#include "appkit/Alerts.h"

#include "appkit/Retained.h"
#include "appkit/Strings.h"

#import <AppKit/AppKit.h>

namespace qbsp::appkit {

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
