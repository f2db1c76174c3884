#include "BenchedPane.h"

namespace benchmarks {

namespace {

struct FlagColumn : qbsp::platform::TableColumn {
    std::string identifier() const override { return "2"; }

    void setHeaderStringValue(std::string_view) override {}
};

} // namespace

BenchedPane::BenchedPane()
    : pane_(qbsp::QBSPPreferencePane::initWithBundle(qbsp::platform::servicesOf(services_), base_)) {
    pane_->setLoginItemRegistrar(&registrar_);
}

void BenchedPane::tickFirst(bool hide) {
    pane_->tableViewSetObjectValueForTableColumnRow(*pane_->controls.hideAppsTable, hide ? 1 : 0,
                                                    FlagColumn(), 0);
}

} // namespace benchmarks
