#include "stages/ControlsStage.h"

#include "appkit/bridge/Strings.h"
#include "appkit/controls/Controls.h"
#include "appkit/controls/RecorderControl.h"
#import "on_appkit/ContractView.h"

namespace qbsp::contracts {

using platform::Dictionary;

namespace {

class AppKitStage final : public ControlsStage {
public:
    AppKitStage() { [window_.get() setContentView:view_.get()]; }

    ~AppKitStage() override { [window_.get() close]; }

    platform::TextField& textField() override { return textField_; }

    platform::Button& button() override { return button_; }

    platform::RecorderControl& recorder() override { return recorder_; }

    platform::TableView& table() override { return table_; }

    Dictionary shownTextField() override {
        NSTextField* field = view_.get()->textField;
        const bool hidden = [field isHidden];
        return {{"hidden", hidden}, {"text", appkit::utf8([field stringValue])}};
    }

    Dictionary shownButton() override {
        NSButton* button = view_.get()->button;
        const bool enabled = [button isEnabled];
        const bool hidden = [button isHidden];
        const auto state = static_cast<int>([button state]);
        return {{"enabled", enabled},
                {"hidden", hidden},
                {"state", state},
                {"title", appkit::utf8([button title])}};
    }

    Dictionary shownRecorder() override {
        QBSPRecorderView* recorder = view_.get()->recorder;
        const bool hidden = [recorder isHidden];
        const platform::KeyCombo combo{.flags = [recorder flags], .code = [recorder keyCode]};
        return {{"code", combo.code}, {"flags", combo.flags}, {"hidden", hidden}};
    }

    void clickButton() override { [view_.get()->button performClick:nil]; }

    void setRowCount(std::int64_t count) override { view_.get()->rowCount = static_cast<NSInteger>(count); }

    std::int64_t shownRows() override { return [view_.get()->table numberOfRows]; }

    std::string shownHeader(std::size_t column) override {
        return appkit::utf8(
            [[[[view_.get()->table tableColumns] objectAtIndex:column] headerCell] stringValue]);
    }

    std::vector<std::int64_t> selectedRows() override {
        NSIndexSet* selected = [view_.get()->table selectedRowIndexes];
        std::vector<std::int64_t> rows;
        for (NSUInteger row = [selected firstIndex]; row != NSNotFound;
             row = [selected indexGreaterThanIndex:row])
            rows.push_back(static_cast<std::int64_t>(row));
        return rows;
    }

    bool rowIsVisible(std::int64_t row) override {
        NSTableView* table = view_.get()->table;
        const NSRect seen = [[table enclosingScrollView] documentVisibleRect];
        const NSRect wanted = [table rectOfRow:static_cast<NSInteger>(row)];
        return NSMinY(seen) <= NSMinY(wanted) && NSMaxY(wanted) <= NSMaxY(seen);
    }

private:
    /// Only views in a window have a visible rectangle.
    static NSWindow* makeWindow() {
        NSWindow* window = [[NSWindow alloc] initWithContentRect:NSMakeRect(0, 0, 200, 200)
                                                       styleMask:NSTitledWindowMask
                                                         backing:NSBackingStoreBuffered
                                                           defer:YES];
        [window setReleasedWhenClosed:NO];
        return window;
    }

    const appkit::Retained<NSWindow*> window_ = appkit::Retained<NSWindow*>::adopt(makeWindow());
    const appkit::Retained<ContractView*> view_ =
        appkit::Retained<ContractView*>::adopt([[ContractView alloc] init]);
    appkit::AppKitTextField textField_{view_.get()->textField};
    appkit::AppKitButton button_{view_.get()->button};
    appkit::AppKitRecorderControl recorder_{view_.get()->recorder};
    appkit::AppKitTableView table_{view_.get()->table};
};

} // namespace

std::unique_ptr<ControlsStage> ControlsStage::appKit() {
    return std::make_unique<AppKitStage>();
}

} // namespace qbsp::contracts
