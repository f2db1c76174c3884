#include "RandomWriter.h"

#include "appkit/stores/Preferences.h"
#include "appkit/stores/UserDefaults.h"

#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <map>
#include <random>
#include <sys/prctl.h>
#include <tuple>
#include <unistd.h>
#include <utility>

namespace faults {

using namespace qbsp;

namespace {

constexpr platform::ApplicationID sorterDomain{"com.quarrybook.Sorter"};

class Writer {
public:
    Writer(int writer, Model& model, unsigned seed) : writer_(writer), model_(model), random_(seed) {}

    void write() {
        while (!model_.isOver) {
            switch (random_() % 4) {
            case 0:
                setInSorter(anyKey());
                break;
            case 1:
                setInHost(anyKey());
                break;
            case 2:
                setList();
                break;
            default:
                std::ignore = save();
            }
        }
    }

    [[nodiscard]] bool save() {
        // A save that fails may have written the list all the same.
        if (firstTry_ == 0)
            firstTry_ = now();
        const bool sorterIsSaved = preferences_->synchronize(
            sorterDomain, platform::PreferencesUser::currentUser, platform::PreferencesHost::anyHost);
        const bool isSaved = userDefaults_.synchronize() && sorterIsSaved;
        if (isSaved)
            noteSaved();
        return isSaved;
    }

private:
    int anyKey() { return static_cast<int>(random_() % keysOfAWriter); }

    int set(Model::Domain& domain, int key) {
        auto& value = domain.set.at(static_cast<std::size_t>(key));
        unsaved_[&domain.saved.at(static_cast<std::size_t>(key))] = ++value;
        return value;
    }

    void setInSorter(int key) {
        const int value = set(model_.sorter, key);
        preferences_->setAppValue({keyOf(writer_, key)}, value, sorterDomain);
    }

    void setInHost(int key) {
        const int value = set(model_.host, key);
        userDefaults_.setObjectForKey(value, {keyOf(writer_, key)});
    }

    void setList() {
        unsavedList_ = ++model_.listsSet;
        firstTry_ = 0;
        const std::string name = std::to_string(writer_) + " " + std::to_string(unsavedList_);
        preferences_->setAppValue({listKey}, platform::Dictionary{{name, true}}, sorterDomain);
    }

    // What a writer that was killed had set before is gone.
    void noteSaved() {
        for (const auto& [saved, value] : std::exchange(unsaved_, {}))
            *saved = value;
        if (unsavedList_ == 0)
            return;
        model_.list.began = firstTry_;
        model_.list.ended = now();
        model_.list.number = std::exchange(unsavedList_, 0);
    }

    int writer_;
    Model& model_;
    std::map<std::atomic<int>*, int> unsaved_;
    long unsavedList_ = 0;
    std::int64_t firstTry_ = 0; ///< when the list was first tried to be saved; 0 when it was not yet
    std::minstd_rand random_;
    std::unique_ptr<platform::Preferences> preferences_ = appkit::makePreferences();
    appkit::AppKitUserDefaults userDefaults_;
};

bool savesAfterAll(Writer& writer) {
    const std::int64_t limit = now() + std::chrono::nanoseconds(std::chrono::seconds(30)).count();
    while (!writer.save())
        if (now() > limit)
            return false;
    return true;
}

} // namespace

std::string keyOf(int writer, int key) {
    return "key " + std::to_string(key) + " of writer " + std::to_string(writer);
}

std::int64_t now() {
    return std::chrono::nanoseconds(std::chrono::steady_clock::now().time_since_epoch()).count();
}

pid_t startWriter(int writer, Model& model, unsigned seed) {
    const pid_t process = fork();
    if (process != 0)
        return process;
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    dup2(open("/dev/null", O_WRONLY), STDERR_FILENO); // locks that are held are logged again and again
    Writer writing(writer, model, seed);
    writing.write();
    _exit(savesAfterAll(writing) ? EXIT_SUCCESS : EXIT_FAILURE);
}

} // namespace faults
