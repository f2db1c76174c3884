#include "appkit/controls/ControlAdapters.h"

namespace qbsp::appkit {

ControlAdapters::ControlAdapters(const ViewControls& views) {
    forEachControl([](const char*, auto& adapter, auto* view) { adapter.emplace(view); }, adapters_, views);
}

PaneControls ControlAdapters::outlets() {
    PaneControls outlets;
    forEachControl(
        []<class Control>(const char*, platform::Outlet<Control>& outlet, detail::Adapter<Control>& adapter) {
            outlet = platform::Outlet<Control>(&*adapter);
        },
        outlets, adapters_);
    return outlets;
}

AppKitRecorderControl* ControlAdapters::recorderFor(id recorder) {
    for (auto* each : {&adapters_.clipHotKeyRecorder, &adapters_.noteHotKeyRecorder})
        if ((*each)->isFor(recorder))
            return &**each;
    return nullptr;
}

} // namespace qbsp::appkit
