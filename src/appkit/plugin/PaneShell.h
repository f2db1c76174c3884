#pragma once

#include "appkit/controls/ControlAdapters.h"
#include "appkit/plugin/QBSPVisibilityBinding.h"
#include "appkit/services/PreferencePaneBase.h"
#include "appkit/services/Services.h"
#include "appkit/services/SorterControlProtocol.h"
#import "appkit/view/QBSPPaneView.h"
#include "pane/QBSPPreferencePane.h"

#import <PreferencePanes/NSPreferencePane.h>

#include <memory>
#include <optional>

namespace qbsp::appkit {

/// What the principal object owns: the pane, the services that the pane uses, and its view.
class PaneShell {
public:
    /// Takes the principal object, which owns this, and the plug-in's bundle; neither is retained.
    PaneShell(PrincipalObject object, NSBundle* bundle);
    ~PaneShell();
    PaneShell(const PaneShell&) = delete;
    PaneShell& operator=(const PaneShell&) = delete;

    /// Creates the pane. Returns false when the base class's initializer returned nil; the principal object
    /// is no longer valid then.
    [[nodiscard]] bool create();

    [[nodiscard]] qbsp::QBSPPreferencePane& pane() { return *pane_; }

    /// The view, created on first use.
    [[nodiscard]] QBSPPaneView* view();

    /// The pane's registrar, which is not retained; nil when there is none.
    [[nodiscard]] QBSPRegistrar loginItemRegistrar();
    void setLoginItemRegistrar(QBSPRegistrar registrar);

    /// Reports to the pane that the application named by the notification has terminated.
    void appDied(NSNotification* notification);

    /// The recorder delegate's messages. The pane treats a recorder that is not in its view as a foreign one.
    /// The reason may be null; otherwise it is set to an autoreleased string when there is a reason.
    [[nodiscard]] bool isTaken(id recorder, const platform::KeyCombo& keyCombo, NSString** reason);
    void keyComboDidChange(id recorder, const platform::KeyCombo& keyCombo);

    void mainViewDidLoad();
    void willSelect();
    void willUnselect();

    /// Must be called when the application terminates. Leaves the pane if it is shown; a willUnselect that
    /// the host sends afterwards is ignored.
    void applicationWillTerminate();

    [[nodiscard]] NSInteger numberOfRows();
    [[nodiscard]] id objectValue(NSTableColumn* column, NSInteger row);
    void setObjectValue(id value, NSTableColumn* column, NSInteger row);

private:
    void makeView();
    void connectActions(id target);

    /// The view's adapter for that recorder, or a null object when the view has no such recorder.
    [[nodiscard]] platform::RecorderControl& recorderControl(id recorder);

    /// The view's table, or a null object while there is no view.
    [[nodiscard]] platform::TableView& hideAppsTable();

    PrincipalObject object_;
    NSBundle* bundle_;
    AppKitServices services_;
    AppKitPreferencePaneBase base_;
    Retained<QBSPPaneView*> view_;
    Retained<QBSPVisibilityBinding*> visibility_;
    std::optional<ControlAdapters> controls_;
    std::optional<RegistrarAdapter> givenRegistrar_;
    bool isSetUp_ = false;
    bool isShown_ = false;
    bool applicationTerminates_ = false;
    std::shared_ptr<qbsp::QBSPPreferencePane> pane_;
};

} // namespace qbsp::appkit
