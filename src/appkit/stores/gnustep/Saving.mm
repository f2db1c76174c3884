#include "appkit/stores/gnustep/Saving.h"

#include "appkit/bridge/Strings.h"
#include "appkit/stores/OnceSaved.h"
#import "appkit/stores/gnustep/QBSPSaver.h"
#include "appkit/stores/gnustep/StandardDefaults.h"

#include <tuple>

namespace qbsp::appkit {

namespace {

files::Patience& patienceOfUser() {
    static files::Patience patience{std::chrono::milliseconds(1200)};
    return patience;
}

StoredLists* makeStoredLists() {
    boundStandardDefaults();
    return new StoredLists(utf8(GSDefaultsRootForUser(NSUserName())),
                           [](const std::string& line) { NSLog(@"%@", nsString(line)); });
}

} // namespace

StoredLists& storedLists() {
    // It outlives whatever may still have something to save when the process ends.
    static StoredLists& lists = *makeStoredLists();
    return lists;
}

std::filesystem::path hostFile() {
    return storedLists().fileOfDomain(utf8([[NSProcessInfo processInfo] processName]));
}

void saveSoon() {
    [[QBSPSaver saver] saveSoon];
}

void saveNow() {
    if (!storedLists().save(patienceOfUser()))
        [[QBSPSaver saver] saveLater];
}

bool saveOrForget(const std::filesystem::path& file) {
    return storedLists().saveOrForget(file, patienceOfUser());
}

void saveAtEnd() {
    // Leaving the pane may have used up the other patience just now, on the same lock.
    files::Patience little{std::chrono::milliseconds(400)};
    storedLists().saveAtEnd(little);
}

void onceSaved(const std::string& name, std::function<void()> function) {
    storedLists().onceSaved(name, std::move(function));
}

} // namespace qbsp::appkit
