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

/// Everything that the principal object holds: the pane, the services it asks, and its view.
class PaneShell {
  public:
    /// The principal object, which owns this, and its plug-in's bundle.
    PaneShell(PrincipalObject object, NSBundle* bundle);
    ~PaneShell();
    PaneShell(const PaneShell&) = delete;
    PaneShell& operator=(const PaneShell&) = delete;

    /// Makes the pane. False when the base class refused; the principal object is gone then.
    [[nodiscard]] bool create();

    [[nodiscard]] qbsp::QBSPPreferencePane& pane() { return *pane_; }

    /// The view; made the first time.
    [[nodiscard]] QBSPPaneView* view();

    /// The pane's registrar, which nobody here retains; nil for none.
    [[nodiscard]] QBSPRegistrar loginItemRegistrar();
    void setLoginItemRegistrar(QBSPRegistrar registrar);

    /// Reports the end of the application that the notification names.
    void appDied(NSNotification* notification);

    /// What a recorder asks and reports; the pane is told of a recorder that is not its view's as a foreign
    /// one. The reason may be null; it is set, autoreleased, when there is one.
    [[nodiscard]] bool isTaken(id recorder, const platform::KeyCombo& keyCombo, NSString** reason);
    void keyComboDidChange(id recorder, const platform::KeyCombo& keyCombo);

    void mainViewDidLoad();
    void willSelect();
    void willUnselect();

    /// The application ends. The pane is left first when it is shown, and a host that then says so as well is
    /// not heard.
    void applicationWillTerminate();

    [[nodiscard]] NSInteger numberOfRows();
    [[nodiscard]] id objectValue(NSTableColumn* column, NSInteger row);
    void setObjectValue(id value, NSTableColumn* column, NSInteger row);

  private:
    void makeView();
    void connectActions(id target);

    /// The view's adapter for that recorder, or a null one.
    [[nodiscard]] platform::RecorderControl& recorderControl(id recorder);

    /// The view's table; one that takes everything and shows nothing while there is no view.
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
