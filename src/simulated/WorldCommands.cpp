#include "simulated/WorldCommands.h"

#include "scenario/CommandTable.h"
#include "scenario/ScenarioError.h"
#include "simulated/Arguments.h"
#include "simulated/Json.h"
#include "simulated/SimulatedView.h"

#include <algorithm>
#include <array>

namespace qbsp::simulated {

namespace {

using scenario::ScenarioError;
using scenario::Words;

/// A command that sets one field of the world to what the reader takes.
template <auto Field, auto Read>
WorldChange setField(Words& arguments) {
    return [value = (arguments.*Read)()](World& world) {
        world.*Field = value;
    };
}

WorldChange readLoader(Words& arguments) {
    const std::string word = arguments.oneOf({"present", "empty", "absent"});
    const Loader loader = word == "present" ? Loader::present
                          : word == "empty" ? Loader::empty
                                            : Loader::absent;
    return [loader](World& world) {
        world.loader = loader;
    };
}

WorldChange readTranslation(Words& arguments) {
    const std::string key = arguments.text();
    const std::string text = arguments.text();
    return [=](World& world) {
        world.translations[key] = text;
    };
}

WorldChange readDefault(Words& arguments) {
    const std::string key = arguments.text();
    const platform::Value value = takeValue(arguments);
    return [=](World& world) {
        world.defaults.put(key, value);
    };
}

WorldChange readDomain(Words& arguments) {
    const std::string identifier = takeIdentifier(arguments);
    const std::string key = arguments.text();
    const platform::Value value = takeValue(arguments);
    return [=](World& world) {
        world.domains[identifier].put(key, value);
    };
}

WorldChange readRunning(Words& arguments) {
    const std::string identifier = takeIdentifier(arguments);
    if (arguments.boolean())
        return [=](World& world) {
            world.running.insert(identifier);
        };
    return [=](World& world) {
        world.running.erase(identifier);
    };
}

WorldChange readJobs(Words& arguments) {
    const platform::Value value = takeValue(arguments);
    if (!value.exists())
        return [](World& world) {
            world.jobs = std::nullopt;
        };
    const auto* const list = value.as<platform::Array>();
    if (list == nullptr)
        throw ScenarioError("not an array of dictionaries");
    std::vector<platform::Dictionary> jobs;
    for (const platform::Value& job : *list) {
        if (job.as<platform::Dictionary>() == nullptr)
            throw ScenarioError("not an array of dictionaries");
        jobs.push_back(*job.as<platform::Dictionary>());
    }
    return [=](World& world) {
        world.jobs = jobs;
    };
}

WorldChange readLaunch(Words& arguments) {
    const bool launches = arguments.oneOf({"app", "nothing"}) == "app";
    const auto error = arguments.atEnd() ? std::nullopt : std::optional(arguments.text());
    return [=](World& world) {
        world.launches = launches;
        world.launchError = error;
    };
}

WorldChange readFile(Words& arguments) {
    return [path = arguments.text()](World& world) {
        world.disk.putFile(path);
    };
}

WorldChange readPlist(Words& arguments) {
    const std::string path = arguments.text();
    const platform::Value value = takeValue(arguments);
    if (value.as<platform::Dictionary>() == nullptr)
        throw ScenarioError("not a dictionary");
    return [=](World& world) {
        world.disk.putPropertyList(path, *value.as<platform::Dictionary>());
    };
}

WorldChange readRemove(Words& arguments) {
    return [path = arguments.text()](World& world) {
        world.disk.remove(path);
    };
}

WorldChange readColumns(Words& arguments) {
    std::vector<std::string> columns = {arguments.text()};
    while (!arguments.atEnd()) {
        columns.push_back(arguments.text());
        if (std::ranges::count(columns, columns.back()) > 1)
            throw ScenarioError("a column twice: " + jsonText(columns.back()));
    }
    return [=](World& world) {
        world.columns = columns;
    };
}

WorldChange readDisconnect(Words& arguments) {
    const std::string field = arguments.text();
    if (std::ranges::find(controlFields(), field) == controlFields().end())
        throw ScenarioError("no control field: " + jsonText(field));
    return [=](World& world) {
        world.disconnected.insert(field);
    };
}

struct WorldCommand {
    std::string_view name;
    std::string_view arguments;
    WorldChange (*read)(Words& arguments);
};

constexpr auto worldCommands = std::to_array<WorldCommand>({
    {"sandboxed", "true|false", setField<&World::sandboxed, &Words::boolean>},
    {"pro", "true|false", setField<&World::pro, &Words::boolean>},
    {"process", "NAME", setField<&World::processName, &Words::text>},
    {"main-bundle", "PATH", setField<&World::mainBundle, &Words::text>},
    {"base", "true|false", setField<&World::baseAgrees, &Words::boolean>},
    {"loader", "present|empty|absent", readLoader},
    {"registrar-executable", "PATH", setField<&World::registrarExecutable, &Words::text>},
    {"no-class-executable", "PATH|null", setField<&World::noClassExecutable, &Words::textOrNull>},
    {"registered", "true|false", setField<&World::registered, &Words::boolean>},
    {"registrar-adds", "true|false", setField<&World::registrarAdds, &Words::boolean>},
    {"registrar-removes", "true|false", setField<&World::registrarRemoves, &Words::boolean>},
    {"translation", "KEY TEXT", readTranslation},
    {"default", "KEY VALUE", readDefault},
    {"synchronizes", "true|false", setField<&World::synchronizes, &Words::boolean>},
    {"domain", "ID KEY VALUE", readDomain},
    {"running", "ID true|false", readRunning},
    {"jobs", "VALUE", readJobs},
    {"launch-services", "N", setField<&World::launchServicesStatus, &Words::signed32>},
    {"launch", "app|nothing [ERROR]", readLaunch},
    {"terminates", "true|false", setField<&World::terminates, &Words::boolean>},
    {"container", "PATH|null", setField<&World::container, &Words::textOrNull>},
    {"file", "PATH", readFile},
    {"plist", "PATH VALUE", readPlist},
    {"remove", "PATH", readRemove},
    {"folder-error", "TEXT|null", setField<&World::folderError, &Words::textOrNull>},
    {"writes", "true|false", setField<&World::writes, &Words::boolean>},
    {"alert", "N", setField<&World::alertAnswer, &Words::signed64>},
    {"columns", "NAME...", readColumns},
    {"disconnect", "FIELD", readDisconnect},
});

} // namespace

std::optional<WorldChange> readWorldCommand(std::string_view name, Words& arguments) {
    const auto* const command = scenario::findCommand(worldCommands, name);
    if (command == nullptr)
        return std::nullopt;
    auto change = command->read(arguments);
    arguments.finish();
    return change;
}

std::string worldCommandList() {
    return scenario::commandList(worldCommands);
}

} // namespace qbsp::simulated
