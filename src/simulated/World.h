#pragma once

#include "pane/PaneControls.h"
#include "platform/Value.h"
#include "simulated/Disk.h"
#include "simulated/Store.h"

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace qbsp::simulated {

/// Whether the class that hands out the registrar is in the process, and has one to hand out.
enum class Loader { present, empty, absent };

/// What the simulated platform returns. A scenario or a test may change it at any time.
struct World {
    bool sandboxed = false;
    bool pro = true;
    std::string processName = "Quarrybook";
    std::string mainBundle = "/Applications/Quarrybook.app";
    bool baseAgrees = true;

    Loader loader = Loader::present;
    std::string registrarExecutable =
        "/Applications/Quarrybook.app/Contents/PlugIns/SorterPlugin.bundle/Contents/MacOS/SorterPlugin";
    std::optional<std::string> noClassExecutable = "/Applications/Quarrybook.app/Contents/MacOS/Quarrybook";
    bool registered = false;
    bool registrarAdds = true;
    bool registrarRemoves = true;

    std::map<std::string, std::string, std::less<>> translations;

    Store defaults;
    bool synchronizes = true;
    std::map<std::string, Store, std::less<>> domains; ///< by identifier

    std::set<std::string, std::less<>> running; ///< bundle identifiers
    std::optional<std::vector<platform::Dictionary>> jobs;
    std::int32_t launchServicesStatus = 0;
    bool launches = true;
    std::optional<std::string> launchError;
    bool terminates = true;

    std::optional<std::string> container = "/Users/user/Library/Group Containers/Z3K8WQ4N7P.quarry2";
    Disk disk;
    std::optional<std::string> folderError;
    bool writes = true;

    std::int64_t alertAnswer = 1001;

    std::vector<std::string> columns = {std::string(nameColumn.text), std::string(flagColumn.text)};
    std::set<std::string, std::less<>> disconnected; ///< names of control fields
};

} // namespace qbsp::simulated
