#pragma once

#include "platform/Value.h"

#include <cstddef>
#include <filesystem>
#include <string>

namespace qbsp::appkit {

/// What a file is as the store of a dictionary.
struct ListFile {
    enum class State {
        absent,  ///< there is no file, or an empty one
        read,    ///< its dictionary was read
        unread,  ///< it could not be opened or read, perhaps only now: nothing may be written in its place
        damaged, ///< it was read, but holds no dictionary that could be kept
    };

    State state = State::absent;
    platform::Dictionary contents;
    std::string cause; ///< why it was not read, in words that follow the file's name
};

/// Files of stores are read up to this size, in bytes; others' files, which are small, up to that one.
inline constexpr std::size_t largestStore = std::size_t{32} << 20U;
inline constexpr std::size_t largestOther = std::size_t{8} << 20U;

/// Reads the file, which is opened once.
[[nodiscard]] ListFile readListFile(const std::filesystem::path& file, std::size_t limit);

/// What came of writing a file.
struct ListWriting {
    std::string failure;          ///< in words that follow the file's name; empty for a success
    std::filesystem::path keptAs; ///< where a damaged file was set aside
};

/// Replaces the file by one with that dictionary, whole or not at all, once what would be read from it has
/// been compared. A link is followed. What was found in its place is what `found` says; damaged contents are
/// kept under another name first.
[[nodiscard]] ListWriting writeListFile(const std::filesystem::path& file,
                                        const platform::Dictionary& contents, const ListFile& found);

/// Takes the file away; damaged contents are kept under another name.
[[nodiscard]] ListWriting removeListFile(const std::filesystem::path& file, const ListFile& found);

} // namespace qbsp::appkit
