#include "simulated/WorldCommands.h"

#include "simulated/Json.h"
#include "simulated/ScenarioError.h"
#include "simulated/SimulatedView.h"

#include <algorithm>
#include <map>

namespace qbsp::simulated {

namespace {

using Reader = WorldChange (*)(Arguments& arguments);

/// A command that sets one field of the world to what the reader takes.
template <auto Field, auto Read>
WorldChange setField(Arguments& arguments) {
    return [value = (arguments.*Read)()](World& world) {
        world.*Field = value;
    };
}

WorldChange readLoader(Arguments& arguments) {
    const std::string word = arguments.oneOf({"present", "empty", "absent"});
    const Loader loader = word == "present" ? Loader::present
                          : word == "empty" ? Loader::empty
                                            : Loader::absent;
    return [loader](World& world) {
        world.loader = loader;
    };
}

WorldChange readTranslation(Arguments& arguments) {
    const std::string key = arguments.text();
    const std::string text = arguments.text();
    return [=](World& world) {
        world.translations[key] = text;
    };
}

WorldChange readDefault(Arguments& arguments) {
    const std::string key = arguments.text();
    const platform::Value value = arguments.value();
    return [=](World& world) {
        world.defaults.put(key, value);
    };
}

WorldChange readDomain(Arguments& arguments) {
    const std::string identifier = arguments.identifier();
    const std::string key = arguments.text();
    const platform::Value value = arguments.value();
    return [=](World& world) {
        world.domains[identifier].put(key, value);
    };
}

WorldChange readRunning(Arguments& arguments) {
    const std::string identifier = arguments.identifier();
    if (arguments.boolean())
        return [=](World& world) {
            world.running.insert(identifier);
        };
    return [=](World& world) {
        world.running.erase(identifier);
    };
}

WorldChange readJobs(Arguments& arguments) {
    const platform::Value value = arguments.value();
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

WorldChange readLaunch(Arguments& arguments) {
    const bool launches = arguments.oneOf({"app", "nothing"}) == "app";
    const auto error = arguments.atEnd() ? std::nullopt : std::optional(arguments.text());
    return [=](World& world) {
        world.launches = launches;
        world.launchError = error;
    };
}

WorldChange readFile(Arguments& arguments) {
    return [path = arguments.text()](World& world) {
        world.disk.putFile(path);
    };
}

WorldChange readPlist(Arguments& arguments) {
    const std::string path = arguments.text();
    const platform::Value value = arguments.value();
    if (value.as<platform::Dictionary>() == nullptr)
        throw ScenarioError("not a dictionary");
    return [=](World& world) {
        world.disk.putPropertyList(path, *value.as<platform::Dictionary>());
    };
}

WorldChange readRemove(Arguments& arguments) {
    return [path = arguments.text()](World& world) {
        world.disk.remove(path);
    };
}

WorldChange readColumns(Arguments& arguments) {
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

WorldChange readDisconnect(Arguments& arguments) {
    const std::string field = arguments.text();
    if (std::ranges::find(controlFields(), field) == controlFields().end())
        throw ScenarioError("no control field: " + jsonText(field));
    return [=](World& world) {
        world.disconnected.insert(field);
    };
}

const std::map<std::string, Reader, std::less<>> readers = {
    {"sandboxed", setField<&World::sandboxed, &Arguments::boolean>},
    {"pro", setField<&World::pro, &Arguments::boolean>},
    {"process", setField<&World::processName, &Arguments::text>},
    {"main-bundle", setField<&World::mainBundle, &Arguments::text>},
    {"base", setField<&World::baseAgrees, &Arguments::boolean>},
    {"loader", readLoader},
    {"registrar-executable", setField<&World::registrarExecutable, &Arguments::text>},
    {"no-class-executable", setField<&World::noClassExecutable, &Arguments::textOrNull>},
    {"registered", setField<&World::registered, &Arguments::boolean>},
    {"registrar-adds", setField<&World::registrarAdds, &Arguments::boolean>},
    {"registrar-removes", setField<&World::registrarRemoves, &Arguments::boolean>},
    {"translation", readTranslation},
    {"default", readDefault},
    {"synchronizes", setField<&World::synchronizes, &Arguments::boolean>},
    {"domain", readDomain},
    {"running", readRunning},
    {"jobs", readJobs},
    {"launch-services", setField<&World::launchServicesStatus, &Arguments::signed32>},
    {"launch", readLaunch},
    {"terminates", setField<&World::terminates, &Arguments::boolean>},
    {"container", setField<&World::container, &Arguments::textOrNull>},
    {"file", readFile},
    {"plist", readPlist},
    {"remove", readRemove},
    {"folder-error", setField<&World::folderError, &Arguments::textOrNull>},
    {"writes", setField<&World::writes, &Arguments::boolean>},
    {"alert", setField<&World::alertAnswer, &Arguments::signed64>},
    {"columns", readColumns},
    {"disconnect", readDisconnect},
};

} // namespace

std::optional<WorldChange> readWorldCommand(const std::string& command, Arguments& arguments) {
    const auto reader = readers.find(command);
    if (reader == readers.end())
        return std::nullopt;
    auto change = reader->second(arguments);
    arguments.finish();
    return change;
}

} // namespace qbsp::simulated
