#include "simulated/PaneCommands.h"

#include "pane/SharedSorterFolder.h"
#include "scenario/CommandTable.h"
#include "scenario/ScenarioError.h"
#include "simulated/Arguments.h"
#include "simulated/Json.h"
#include "simulated/StateText.h"

#include <array>

namespace qbsp::simulated {

namespace {

using scenario::ScenarioError;
using scenario::Words;

using Answer = std::optional<std::string>;

/// An action without an answer.
PaneAction silent(std::function<void()> action) {
    return [action = std::move(action)]() -> Answer {
        action();
        return std::nullopt;
    };
}

/// A column that has an identifier, whether or not the table has one.
class NamedColumn final : public platform::TableColumn {
public:
    explicit NamedColumn(std::string identifier) : identifier_(std::move(identifier)) {}

    std::string identifier() const override { return identifier_; }

    void setHeaderStringValue(std::string_view) override {}

private:
    std::string identifier_;
};

/// The recorder that a scenario names: one of the pane's two, or another where it is neither or not
/// connected.
const platform::RecorderControl& recorder(const PaneSession& session, const std::string& name) {
    const PaneControls& controls = session.pane().controls;
    if (name == "clip")
        return *controls.clipHotKeyRecorder;
    return name == "note" ? *controls.noteHotKeyRecorder : platform::nullObject<platform::RecorderControl>();
}

std::string recorderName(Words& arguments) {
    return arguments.oneOf({"clip", "note", "other"});
}

std::int32_t rowInList(Words& arguments, const PaneSession& session) {
    const std::int32_t row = arguments.signed32();
    const auto rows = static_cast<std::int64_t>(session.pane().tableArray().records().size());
    if (row < 0 || row >= rows)
        throw ScenarioError("out of place: the list has no row " + std::to_string(row));
    return row;
}

template <void (QBSPPreferencePane::*Message)()>
PaneAction send(Words&, PaneSession& session) {
    return silent([&session] { (session.pane().*Message)(); });
}

template <void (QBSPPreferencePane::*Message)(QBSPPreferencePane::Sender)>
PaneAction sendFromButton(Words&, PaneSession& session) {
    return silent([&session] { (session.pane().*Message)(nullptr); });
}

PaneAction readInitialize(Words&, PaneSession& session) {
    return silent([&session] { session.initialize(); });
}

PaneAction readCreate(Words&, PaneSession& session) {
    if (session.hasPane())
        throw ScenarioError("out of place: there is a pane");
    return [&session] {
        return json(session.create());
    };
}

PaneAction readLoadView(Words&, PaneSession& session) {
    if (session.hasView())
        throw ScenarioError("out of place: the view is loaded");
    return silent([&session] { session.loadView(); });
}

PaneAction readDealloc(Words&, PaneSession& session) {
    return silent([&session] { session.dealloc(); });
}

PaneAction readAdd(Words& arguments, PaneSession& session) {
    if (session.platform().openPanels.sheetIsOpen())
        throw ScenarioError("out of place: a sheet is open");
    return sendFromButton<&QBSPPreferencePane::addHideApp>(arguments, session);
}

PaneAction readPanel(Words& arguments, PaneSession& session) {
    if (!session.platform().openPanels.sheetIsOpen())
        throw ScenarioError("out of place: no sheet is open");
    const std::int64_t result = arguments.signed64();
    const auto path = arguments.atEnd() ? std::nullopt : std::optional(arguments.text());
    if (result == platform::NSOKButton && !path)
        throw ScenarioError("a panel that was confirmed needs a path");
    return silent([=, &session] { session.platform().openPanels.endSheet(result, path); });
}

PaneAction readOffer(Words& arguments, PaneSession& session) {
    const std::string name = recorderName(arguments);
    const std::int64_t code = arguments.signed64();
    const platform::CocoaFlags flags = arguments.unsigned64();
    return [=, &session]() -> Answer {
        std::optional<std::string> reason;
        const bool taken = session.pane().shortcutRecorderIsKeyCodeAndFlagsTakenReason(
            recorder(session, name), code, flags, &reason);
        return "[" + json(taken) + ", " + jsonTextOrNull(reason) + "]";
    };
}

PaneAction readOfferSilently(Words& arguments, PaneSession& session) {
    const std::string name = recorderName(arguments);
    const std::int64_t code = arguments.signed64();
    const platform::CocoaFlags flags = arguments.unsigned64();
    return [=, &session]() -> Answer {
        const bool taken = session.pane().shortcutRecorderIsKeyCodeAndFlagsTakenReason(
            recorder(session, name), code, flags, nullptr);
        return "[" + json(taken) + ", null]";
    };
}

PaneAction readChange(Words& arguments, PaneSession& session) {
    const std::string name = recorderName(arguments);
    const std::int64_t code = arguments.signed64();
    const platform::CocoaFlags flags = arguments.unsigned64();
    return silent([=, &session] {
        session.pane().shortcutRecorderKeyComboDidChange(recorder(session, name), {flags, code});
    });
}

PaneAction readSet(Words& arguments, PaneSession& session) {
    const std::string field = arguments.text();
    const std::string state = arguments.oneOf({"1", "0", "-1"});
    SimulatedButton* const box = session.hasView() ? session.view()->checkBox(field) : nullptr;
    if (box == nullptr)
        throw ScenarioError("out of place: no check box is connected to " + jsonText(field));
    return silent([=] { box->click(static_cast<platform::ButtonState>(std::stoi(state))); });
}

PaneAction readEdit(Words& arguments, PaneSession& session) {
    const std::string column = arguments.text();
    const std::int32_t row = rowInList(arguments, session);
    const platform::Value value = takeValue(arguments);
    return silent([=, &session] {
        session.pane().tableViewSetObjectValueForTableColumnRow(*session.pane().controls.hideAppsTable, value,
                                                                NamedColumn(column), row);
    });
}

PaneAction readValue(Words& arguments, PaneSession& session) {
    const std::string column = arguments.text();
    const std::int32_t row = rowInList(arguments, session);
    return [=, &session]() -> Answer {
        return json(session.pane().tableViewObjectValueForTableColumnRow(
            *session.pane().controls.hideAppsTable, NamedColumn(column), row));
    };
}

PaneAction readRows(Words&, PaneSession& session) {
    return [&session]() -> Answer {
        return json(session.pane().numberOfRowsInTableView(*session.pane().controls.hideAppsTable));
    };
}

PaneAction readFind(Words& arguments, PaneSession& session) {
    return [name = arguments.text(), &session]() -> Answer {
        return json(session.pane().indexOfAppInList(name));
    };
}

PaneAction readTerminated(Words& arguments, PaneSession& session) {
    platform::Notification termination;
    if (const auto identifier = takeIdentifierOrNull(arguments))
        termination.userInfo.emplace(platform::NSApplicationBundleIdentifier, *identifier);
    return [=, &session]() -> Answer {
        return json(session.platform().workspace.report(session.pane(), termination));
    };
}

PaneAction readWait(Words& arguments, PaneSession& session) {
    return silent([seconds = arguments.seconds(), &session] { session.platform().runLoop.runFor(seconds); });
}

PaneAction readRaise(Words& arguments, PaneSession& session) {
    std::ignore = arguments.oneOf({"deleteFullScreenSettingsInSorter"});
    return silent([&session] { session.pane().setDeleteFullScreenSettingsInSorter(true); });
}

PaneAction readInLoginItems(Words&, PaneSession& session) {
    return [&session]() -> Answer {
        return json(session.pane().appIsPresentInLoginItems());
    };
}

PaneAction readLoginItemAlert(Words& arguments, PaneSession& session) {
    return silent(
        [message = arguments.text(), &session] { session.pane().showLoginItemEditFailureAlert(message); });
}

PaneAction readSharedFolder(Words&, PaneSession& session) {
    return [&session]() -> Answer {
        const auto folder = sharedSorterFolder(session.platform().files, session.platform().log);
        return folder ? jsonText(folder->path()) : "null";
    };
}

PaneAction readState(Words&, PaneSession& session) {
    return silent([&session] { writeState(session); });
}

PaneAction readStores(Words&, PaneSession& session) {
    return silent([&session] { writeStores(session.platform()); });
}

/// Whether a command makes sense while there is no pane.
enum class Pane { needed, notNeeded };

struct PaneCommand {
    std::string_view name;
    std::string_view arguments;
    Pane pane;
    PaneAction (*read)(Words& arguments, PaneSession& session);
};

constexpr auto paneCommands = std::to_array<PaneCommand>({
    {"initialize", "", Pane::notNeeded, readInitialize},
    {"create", "", Pane::notNeeded, readCreate},
    {"load-view", "", Pane::needed, readLoadView},
    {"select", "", Pane::needed, send<&QBSPPreferencePane::willSelect>},
    {"unselect", "", Pane::needed, send<&QBSPPreferencePane::willUnselect>},
    {"dealloc", "", Pane::needed, readDealloc},
    {"toggle", "", Pane::needed, sendFromButton<&QBSPPreferencePane::toggleSorterProcess>},
    {"reset", "", Pane::needed, sendFromButton<&QBSPPreferencePane::resetFullscreenSettings>},
    {"add", "", Pane::needed, readAdd},
    {"panel", "CODE [PATH]", Pane::notNeeded, readPanel},
    {"offer", "clip|note|other CODE FLAGS", Pane::needed, readOffer},
    {"offer-silently", "clip|note|other CODE FLAGS", Pane::needed, readOfferSilently},
    {"change", "clip|note|other CODE FLAGS", Pane::needed, readChange},
    {"set", "FIELD 1|0|-1", Pane::needed, readSet},
    {"edit", "COLUMN ROW VALUE", Pane::needed, readEdit},
    {"value", "COLUMN ROW", Pane::needed, readValue},
    {"rows", "", Pane::needed, readRows},
    {"find", "NAME", Pane::needed, readFind},
    {"terminated", "ID|null", Pane::needed, readTerminated},
    {"wait", "SECONDS", Pane::notNeeded, readWait},
    {"raise", "deleteFullScreenSettingsInSorter", Pane::needed, readRaise},
    {"show-sorter", "", Pane::needed, send<&QBSPPreferencePane::showSorterApplication>},
    {"close-sorter", "", Pane::needed, send<&QBSPPreferencePane::closeSorterApplication>},
    {"in-login-items", "", Pane::needed, readInLoginItems},
    {"login-item-alert", "MESSAGE", Pane::needed, readLoginItemAlert},
    {"shared-folder", "", Pane::notNeeded, readSharedFolder},
    {"state", "", Pane::needed, readState},
    {"stores", "", Pane::notNeeded, readStores},
});

} // namespace

std::optional<PaneAction> readPaneCommand(std::string_view name, Words& arguments, PaneSession& session) {
    const auto* const command = scenario::findCommand(paneCommands, name);
    if (command == nullptr)
        return std::nullopt;
    if (command->pane == Pane::needed && !session.hasPane())
        throw ScenarioError("out of place: there is no pane");
    auto action = command->read(arguments, session);
    arguments.finish();
    return action;
}

std::string paneCommandList() {
    return scenario::commandList(paneCommands);
}

} // namespace qbsp::simulated
