#include "appkit/stores/gnustep/StoredLists.h"

#include "files/Folders.h"

#include <tuple>
#include <utility>

namespace qbsp::appkit {

namespace fs = std::filesystem;

using platform::Dictionary;
using platform::Value;
using State = ListFile::State;

namespace {

const std::string leftAlone = "nothing of it is used, and it is left as it is";
const std::string goesOnWaiting = "what was set is kept in memory, and saved as soon as that is possible";
const std::string isForgotten = "what was to be saved is not";
const std::string isLost = "what was set is lost, because the application quits";

} // namespace

fs::path StoredLists::fileOfDomain(const std::string& domain) const {
    return defaultsFolder_ / (domain + ".plist");
}

Dictionary StoredLists::contents(const fs::path& file) {
    ListFile found = reported(file, largestStore);
    const auto waiting = waiting_.find(file);
    return waiting == waiting_.end() ? std::move(found.contents)
                                     : merged(std::move(found.contents), waiting->second);
}

std::optional<Dictionary> StoredLists::read(const fs::path& file) {
    ListFile found = reported(file, largestOther);
    return found.state == State::read ? std::optional(std::move(found.contents)) : std::nullopt;
}

ListFile StoredLists::reported(const fs::path& file, std::size_t limit) {
    ListFile found = readListFile(file, limit);
    if (found.cause.empty())
        unread_.erase(file);
    else if (std::exchange(unread_[file], found.cause) != found.cause)
        log_("ERROR: " + file.string() + ": " + found.cause + "; " + leftAlone);
    return found;
}

Dictionary StoredLists::merged(Dictionary contents, const Waiting& waiting) {
    if (waiting.whole)
        contents = *waiting.whole;
    for (const auto& [key, value] : waiting.changes) {
        if (value.exists())
            contents[key] = value;
        else
            contents.erase(key);
    }
    return contents;
}

void StoredLists::set(const fs::path& file, const std::string& key, const Value& value) {
    waiting_[file].changes[key] = value;
}

void StoredLists::replace(const fs::path& file, const Dictionary& contents) {
    waiting_[file] = {contents, {}};
}

void StoredLists::onceSaved(const std::string& name, std::function<void()> function) {
    if (waits())
        onceSaved_[name] = std::move(function);
}

bool StoredLists::save(files::Patience& patience) {
    if (isEnding_)
        saveAtEnd(patience);
    else
        saveAll(patience, Unlocked::never, goesOnWaiting);
    return !waits();
}

bool StoredLists::saveOrForget(const fs::path& file, files::Patience& patience) {
    saveAll(patience, Unlocked::never, isForgotten, file);
    const bool isSaved = waiting_.erase(file) == 0;
    if (!isSaved)
        unsaved_.erase(file); // a later save is not of what was forgotten
    return isSaved;
}

void StoredLists::saveAtEnd(files::Patience& patience) {
    isEnding_ = true;
    saveAll(patience, Unlocked::atTheEnd, isLost);
}

std::unique_ptr<files::DefaultsLock> StoredLists::takeLock(files::Patience& patience) {
    auto lock = std::make_unique<files::DefaultsLock>(defaultsFolder_, patience);
    reportRemoved(*lock);
    return lock->isHeld() ? std::move(lock) : nullptr;
}

// Whoever is called once all is saved may come here again.
void StoredLists::saveAll(files::Patience& patience, Unlocked unlocked, const std::string& fate,
                          const std::optional<fs::path>& onlyFile) {
    if (isSaving_ || !waits())
        return;
    isSaving_ = true;
    {
        const files::DefaultsLock lock(defaultsFolder_, patience);
        const bool maySave = lock.isHeld() || unlocked == Unlocked::atTheEnd;
        const std::string place = files::DefaultsLock::placeIn(defaultsFolder_);
        reportRemoved(lock);
        std::erase_if(waiting_, [&](const auto& entry) {
            if (onlyFile && *onlyFile != entry.first)
                return false;
            const std::string failure =
                maySave ? saveNow(entry.first, entry.second) : "its lock " + place + " " + lock.obstacle();
            failure.empty() ? reportSaved(entry.first) : report(entry.first, failure, fate);
            return failure.empty();
        });
    }
    isSaving_ = false;
    callOnceSaved();
}

std::string StoredLists::saveNow(const fs::path& file, const Waiting& waiting) {
    const ListFile found = readListFile(file, largestStore);
    if (found.state == State::unread)
        return found.cause;
    const Dictionary wanted = merged(found.contents, waiting);
    if (found.state == State::read && wanted == found.contents) {
        fs::path place = file;
        auto failure = files::followLinks(place);
        if (!failure)
            failure = files::syncFolder(place.parent_path());
        return failure ? "could not be written: " + failure.message() : "";
    }
    const bool isRemoved = wanted.empty() && !waiting.whole;
    const ListWriting writing = isRemoved ? removeListFile(file, found) : writeListFile(file, wanted, found);
    if (!writing.keptAs.empty())
        log_("ERROR: " + file.string() + ": " + found.cause + "; it was kept as " +
             writing.keptAs.filename().string());
    return writing.failure;
}

void StoredLists::report(const fs::path& file, const std::string& cause, const std::string& fate) {
    const std::string line = "ERROR: " + file.string() + ": " + cause + "; " + fate;
    if (std::exchange(unsaved_[file], line) != line)
        log_(line);
}

void StoredLists::reportRemoved(const files::DefaultsLock& lock) {
    if (lock.removedStale())
        log_("The lock " + files::DefaultsLock::placeIn(defaultsFolder_).string() +
             " was left behind by another process, and was removed");
}

void StoredLists::reportSaved(const fs::path& file) {
    if (unsaved_.erase(file) != 0)
        log_(file.string() + ": what was set was saved after all");
}

void StoredLists::callOnceSaved() {
    if (waits())
        return;
    for (const auto& [name, function] : std::exchange(onceSaved_, {}))
        function();
}

} // namespace qbsp::appkit
