#include "appkit/stores/gnustep/ListFile.h"

#include "files/Calls.h"
#include "files/Draft.h"
#include "files/Folders.h"
#include "files/Reading.h"
#include "propertylists/PropertyList.h"

#include <cstdio>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace qbsp::appkit {

namespace fs = std::filesystem;

using platform::Dictionary;
using platform::Value;
using propertylists::parsedPropertyList;
using propertylists::propertyListBytes;
using State = ListFile::State;

namespace {

ListFile damaged(std::string cause) {
    return {State::damaged, {}, std::move(cause)};
}

std::string tooLarge(std::size_t limit) {
    return "is larger than the limit of " + std::to_string(limit >> 20U) + " MB";
}

ListFile listIn(const std::string& bytes) {
    if (bytes.empty())
        return {};
    const auto parsed = parsedPropertyList(bytes);
    if (const auto* fault = std::get_if<propertylists::Fault>(&parsed))
        return damaged(std::string(wordsFor(*fault)));
    const auto* dictionary = std::get<Value>(parsed).as<Dictionary>();
    return dictionary == nullptr ? damaged("holds no dictionary") : ListFile{State::read, *dictionary, {}};
}

/// The bytes of the dictionary; none when another dictionary would be read from them.
std::string bytesThatReadBack(const Dictionary& contents) {
    std::string bytes = propertyListBytes(contents);
    const auto parsed = parsedPropertyList(bytes);
    const auto* value = std::get_if<Value>(&parsed);
    // As bytes: some kinds of integers are one in a file, and what is no number equals nothing.
    return value != nullptr && propertyListBytes(*value) == bytes ? bytes : std::string();
}

std::error_code renameUnlessTaken(const fs::path& file, const fs::path& name) {
    const auto failure = files::attempt(
        [&] { return renameat2(AT_FDCWD, file.c_str(), AT_FDCWD, name.c_str(), RENAME_NOREPLACE); });
    std::error_code ignored;
    if (failure != std::errc::invalid_argument)
        return failure;
    // Not every file system can do both in one step.
    return fs::exists(name, ignored) ? make_error_code(std::errc::file_exists)
                                     : files::attempt([&] { return rename(file.c_str(), name.c_str()); });
}

/// Keeps the file under a name that nothing has.
std::error_code setAside(const fs::path& file, fs::path& name) {
    name = file.string() + ".unreadable";
    auto failure = renameUnlessTaken(file, name);
    for (int number = 2; failure == std::errc::file_exists; ++number) {
        name = file.string() + ".unreadable-" + std::to_string(number);
        failure = renameUnlessTaken(file, name);
    }
    return failure;
}

/// Makes way for what takes the place of a damaged file.
ListWriting makeWay(const fs::path& file, const ListFile& found) {
    ListWriting writing;
    if (found.state != State::damaged)
        return writing;
    if (const auto failure = setAside(file, writing.keptAs))
        return {found.cause + " and could not be set aside: " + failure.message(), {}};
    return writing;
}

std::string couldNotBeWritten(std::error_code failure) {
    return "could not be written: " + failure.message();
}

std::string couldNotBeRemoved(std::error_code failure) {
    return "could not be removed: " + failure.message();
}

} // namespace

ListFile readListFile(const fs::path& file, std::size_t limit) {
    using Outcome = files::Reading::Outcome;
    const files::Reading reading = files::readWhole(file, limit);
    switch (reading.outcome) {
    case Outcome::absent:
        return {};
    case Outcome::failed:
        return {State::unread, {}, "could not be read: " + reading.error.message()};
    case Outcome::tooLarge:
        return damaged(tooLarge(limit));
    default:
        return listIn(reading.contents);
    }
}

ListWriting writeListFile(const fs::path& file, const Dictionary& contents, const ListFile& found) {
    const std::string bytes = bytesThatReadBack(contents);
    if (bytes.empty())
        return {"could not be written: what is to be saved has no form as a property list", {}};
    if (const auto failure = files::makeFolders(file.parent_path()))
        return {couldNotBeWritten(failure), {}};
    fs::path place = file;
    if (const auto failure = files::followLinks(place))
        return {couldNotBeWritten(failure), {}};
    files::Draft draft(place);
    if (const auto failure = draft.write(bytes))
        return {couldNotBeWritten(failure), {}};
    ListWriting writing = makeWay(place, found);
    if (!writing.failure.empty())
        return writing;
    if (const auto failure = draft.place())
        writing.failure = couldNotBeWritten(failure);
    return writing;
}

ListWriting removeListFile(const fs::path& file, const ListFile& found) {
    fs::path place = file;
    if (const auto failure = files::followLinks(place))
        return {couldNotBeRemoved(failure), {}};
    ListWriting writing = makeWay(place, found);
    if (!writing.failure.empty() || found.state == State::absent)
        return writing;
    std::error_code failure;
    if (found.state == State::read)
        failure = files::attempt([&] { return unlink(place.c_str()); });
    if (!failure)
        failure = files::syncFolder(place.parent_path());
    if (failure)
        writing.failure = couldNotBeRemoved(failure);
    return writing;
}

} // namespace qbsp::appkit
