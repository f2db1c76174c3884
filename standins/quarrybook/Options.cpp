#include "Options.h"

#include <cstddef>
#include <functional>
#include <map>

namespace quarrybook {

namespace {

using Flag = std::function<void(Options&)>;
using Setting = std::function<bool(Options&, const std::string& value)>;

bool setEdition(Options& options, const std::string& value) {
    options.edition = value == "solo" ? Edition::solo : Edition::full;
    return value == "solo" || value == "full";
}

template <class Field>
Setting fileFor(Field field) {
    return [field](Options& options, const std::string& value) {
        options.*field = value;
        return !value.empty();
    };
}

const std::map<std::string, Flag>& flags() {
    static const std::map<std::string, Flag> all{
        {"--sandboxed",
         [](Options& options) {
             options.sandboxed = true;
         }},
        {"--no-plugin",
         [](Options& options) {
             options.withSorterPlugin = false;
         }},
        {"--help",
         [](Options& options) {
             options.help = true;
         }},
    };
    return all;
}

const std::map<std::string, Setting>& settings() {
    static const std::map<std::string, Setting> all{
        {"--edition", setEdition},
        {"--pane", fileFor(&Options::pane)},
        {"--play", fileFor(&Options::scenario)},
        {"--picture", fileFor(&Options::picture)},
    };
    return all;
}

bool isForAppKit(const std::string& word) {
    return word.size() > 1 && word[0] == '-' && word[1] != '-';
}

Mistake refusedValue(const std::string& word, const std::string& value) {
    return {"option '" + word + "' does not take '" + value + "'"};
}

} // namespace

std::variant<Options, Mistake> parseOptions(const std::vector<std::string>& arguments) {
    Options options;
    for (std::size_t index = 0; index < arguments.size(); ++index) {
        const std::string& word = arguments[index];
        if (const auto flag = flags().find(word); flag != flags().end()) {
            flag->second(options);
            continue;
        }
        const auto setting = settings().find(word);
        if (setting == settings().end() && !isForAppKit(word))
            return Mistake{"unknown option '" + word + "'; --help lists the options"};
        if (++index == arguments.size())
            return Mistake{"option '" + word + "' needs a value"};
        const std::string& value = arguments[index];
        if (setting == settings().end())
            options.forAppKit.insert(options.forAppKit.end(), {word, value});
        else if (!setting->second(options, value))
            return refusedValue(word, value);
    }
    return options;
}

std::string usage() {
    return "Quarrybook shows the Sorter's pane in its preferences window.\n"
           "\n"
           "  --sandboxed             run as the sandboxed build\n"
           "  --edition full|solo     run as that edition (default: full)\n"
           "  --no-plugin             run without the SorterPlugin and its registrar\n"
           "  --pane PATH             load that pane instead of the one built beside this program\n"
           "  --play FILE             play a scenario in the window, then quit\n"
           "  --picture FILE          write a PNG picture of the window at the end, then quit\n"
           "  --help                  print this\n"
           "\n"
           "Pairs such as -NSLanguages '(German)' go to AppKit.\n";
}

} // namespace quarrybook
