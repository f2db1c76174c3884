#pragma once

#include "appkit/stores/gnustep/ListFile.h"
#include "files/DefaultsLock.h"
#include "platform/Value.h"

#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>

namespace qbsp::appkit {

/// The dictionaries in the user's files, as the pane sees them: what was set is seen at once, and waits here
/// until it was saved. Every save merges it into what the file holds then, under the lock that all processes
/// of the user take. One that failed is made again with the next; nothing is written where a file could not
/// be read. What goes wrong is logged when it happens, once for each file and cause.
class StoredLists {
public:
    using Log = std::function<void(const std::string& line)>;

    /// The folder of the user's defaults, in which the lock lies.
    StoredLists(std::filesystem::path defaultsFolder, Log log)
        : defaultsFolder_(std::move(defaultsFolder)), log_(std::move(log)) {}

    /// The file of that domain of the user's defaults.
    [[nodiscard]] std::filesystem::path fileOfDomain(const std::string& domain) const;

    /// What the file holds now, and what waits for it; empty when there is no file, or none that can be read.
    [[nodiscard]] platform::Dictionary contents(const std::filesystem::path& file);

    /// The dictionary in a file of others, which is smaller than a store; none when it cannot be read.
    [[nodiscard]] std::optional<platform::Dictionary> read(const std::filesystem::path& file);

    /// Has the value wait for the file; no value has the key removed. A file is removed with its last key.
    void set(const std::filesystem::path& file, const std::string& key, const platform::Value& value);

    /// Has the dictionary wait for the file, in the place of all that it holds.
    void replace(const std::filesystem::path& file, const platform::Dictionary& contents);

    /// Saves all that waits, and waits for the lock as long as there is patience. False when something waits
    /// still.
    bool save(files::Patience& patience);

    /// Saves what waits for the file now; forgets it, and returns false, when that fails.
    [[nodiscard]] bool saveOrForget(const std::filesystem::path& file, files::Patience& patience);

    /// As save(), but for the last time: a lock that cannot be had is done without, because who holds one
    /// that long has ended or was stopped. What waits still is logged as lost.
    /// A save that comes later is a last one too: others are notified of the end after this was.
    void saveAtEnd(files::Patience& patience);

    /// Takes the lock, waiting for it as long as there is patience; a stale one is removed. Null when it
    /// cannot be had.
    [[nodiscard]] std::unique_ptr<files::DefaultsLock> takeLock(files::Patience& patience);

    [[nodiscard]] bool waits() const { return !waiting_.empty(); }

    [[nodiscard]] bool waits(const std::filesystem::path& file) const { return waiting_.contains(file); }

    /// Has the function called once all that waits now was saved, in the place of an earlier one of that
    /// name. It is not called when nothing waits.
    void onceSaved(const std::string& name, std::function<void()> function);

private:
    /// What waits for a file.
    struct Waiting {
        std::optional<platform::Dictionary> whole; ///< in the place of all that the file holds
        platform::Dictionary changes;
    };

    [[nodiscard]] ListFile reported(const std::filesystem::path& file, std::size_t limit);
    [[nodiscard]] static platform::Dictionary merged(platform::Dictionary contents, const Waiting& waiting);
    enum class Unlocked { never, atTheEnd };

    void saveAll(files::Patience& patience, Unlocked unlocked, const std::string& fate,
                 const std::optional<std::filesystem::path>& onlyFile = std::nullopt);
    [[nodiscard]] std::string saveNow(const std::filesystem::path& file, const Waiting& waiting);
    void report(const std::filesystem::path& file, const std::string& cause, const std::string& fate);
    void reportRemoved(const files::DefaultsLock& lock);
    void reportSaved(const std::filesystem::path& file);
    void callOnceSaved();

    std::filesystem::path defaultsFolder_;
    Log log_;
    std::map<std::filesystem::path, Waiting> waiting_;
    std::map<std::filesystem::path, std::string> unread_; ///< what was logged of files that could not be read
    std::map<std::filesystem::path, std::string>
        unsaved_; ///< what was logged of files that could not be saved
    std::map<std::string, std::function<void()>> onceSaved_;
    bool isSaving_ = false;
    bool isEnding_ = false;
};

} // namespace qbsp::appkit
