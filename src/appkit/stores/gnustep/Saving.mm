#include "appkit/stores/gnustep/Saving.h"

#include "appkit/bridge/Strings.h"
#include "appkit/stores/OnceSaved.h"
#include "appkit/stores/gnustep/BoundDefaults.h"
#import "appkit/stores/gnustep/QBSPSaver.h"
#include "defaults/Domains.h"

#include <memory>

namespace qbsp::appkit {

namespace {

files::Patience& patienceOfUser() {
    static files::Patience patience{std::chrono::milliseconds(1200)};
    return patience;
}

std::unique_ptr<StoredLists> makeStoredLists() {
    auto lists = std::make_unique<StoredLists>(utf8(GSDefaultsRootForUser(NSUserName())),
                                               [](const std::string& line) { NSLog(@"%@", nsString(line)); });
    boundStandardDefaults(*lists);
    return lists;
}

bool saveAgain() {
    // Another process holds the lock for some milliseconds, which is no failure to speak of. One that holds
    // it for longer must not hold the user up every time.
    files::Patience little{std::chrono::milliseconds(200)};
    return storedLists().save(little);
}

void saveAtEnd() {
    // Leaving the pane may have used up the other patience just now, on the same lock.
    files::Patience little{std::chrono::milliseconds(400)};
    storedLists().saveAtEnd(little);
}

QBSPSaver* saver() {
    static QBSPSaver* const saver = [[QBSPSaver alloc] initWithSave:saveAgain atEnd:saveAtEnd];
    return saver;
}

} // namespace

StoredLists& storedLists() {
    // It outlives whatever may still have something to save when the process ends.
    // NOLINTNEXTLINE(cppcoreguidelines-avoid-non-const-global-variables): there is one user in a process.
    static StoredLists& lists = *makeStoredLists().release();
    return lists;
}

std::filesystem::path hostFile() {
    return storedLists().fileOfDomain(utf8(defaults::ownDomain()));
}

void saveSoon() {
    [saver() saveSoon];
}

void saveNow() {
    if (!storedLists().save(patienceOfUser()))
        [saver() saveLater];
}

bool saveOrForget(const std::filesystem::path& file) {
    return storedLists().saveOrForget(file, patienceOfUser());
}

void onceSaved(const std::string& name, std::function<void()> function) {
    storedLists().onceSaved(name, std::move(function));
}

} // namespace qbsp::appkit
