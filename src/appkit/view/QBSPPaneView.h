#pragma once

#import "appkit/view/QBSPReasonField.h"
#include "appkit/view/ViewControls.h"

#import <AppKit/AppKit.h>

#include <memory>

namespace qbsp::appkit {
class FormLayout;
}

@class QBSPFormView;

/// The pane's main view: a form with all of the pane's controls. It owns the controls; others set their
/// texts. The form scrolls where the host has no room for it.
@interface QBSPPaneView : NSView <QBSPReasonLayout> {
    qbsp::appkit::ViewControls controls;
    QBSPReasonField* noteReasonField;
    QBSPReasonField* clipReasonField;
    QBSPButton* addButton;
    NSScrollView* hideAppsScrollView;
    QBSPFormView* formView;
    NSScrollView* formScrollView;
    std::unique_ptr<qbsp::appkit::FormLayout> form;
}

/// The pane's controls.
- (const qbsp::appkit::ViewControls&)controls;

/// The view's own button, which is not one of the pane's controls. The plug-in sets its title and action.
- (QBSPButton*)addButton;

/// The names of the pane's controls, in the order of its fields.
- (NSArray*)controlNames;

/// The control with one of these names, or with the name "addButton"; nil for any other name. Key-value
/// coding finds it too, for hosts that know only names.
- (NSView*)controlNamed:(NSString*)name;

/// Must be called after texts or hot keys were set, or controls hidden. Lays out the form again, gives each
/// control its label's text as accessibility label, and has the recorders say whether they are equal.
- (void)contentsDidChange;

/// Lays out the form again.
- (void)layOutForm;

/// The first visible control and the last control, in tab order.
- (NSView*)firstControl;
- (NSView*)lastControl;

/// Gives the first control the focus if no control of the pane has it, and closes the tab order where the
/// host has not connected its ends: through the host's own controls, if it has any.
- (void)takeFocus;

@end
