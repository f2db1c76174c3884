#include "simulated/Disk.h"

#include <algorithm>

namespace qbsp::simulated {

namespace {

std::string withoutSlashesAtTheEnd(std::string path) {
    while (path.size() > 1 && path.ends_with('/'))
        path.pop_back();
    return path;
}

bool liesAtOrBelow(const std::string& path, const std::string& folder) {
    return path == folder || path.starts_with(folder.ends_with('/') ? folder : folder + "/");
}

} // namespace

void Disk::putPropertyList(const std::string& path, const platform::Dictionary& contents) {
    entries_[withoutSlashesAtTheEnd(path)] = contents;
}

void Disk::putFile(const std::string& path) {
    entries_[withoutSlashesAtTheEnd(path)] = OtherFile();
}

void Disk::makeFolder(const std::string& path) {
    entries_.try_emplace(withoutSlashesAtTheEnd(path), Folder());
}

void Disk::remove(const std::string& path) {
    const std::string removed = withoutSlashesAtTheEnd(path);
    std::erase_if(entries_, [&](const auto& entry) {
        const bool isFolder = std::holds_alternative<Folder>(entry.second);
        return liesAtOrBelow(entry.first, removed) || (isFolder && liesAtOrBelow(removed, entry.first));
    });
}

bool Disk::exists(const std::string& path) const {
    const std::string folder = withoutSlashesAtTheEnd(path);
    return std::ranges::any_of(entries_,
                               [&](const auto& entry) { return liesAtOrBelow(entry.first, folder); });
}

std::optional<platform::Dictionary> Disk::propertyList(const std::string& path) const {
    const auto found = entries_.find(withoutSlashesAtTheEnd(path));
    if (found == entries_.end())
        return std::nullopt;
    const auto* const contents = std::get_if<platform::Dictionary>(&found->second);
    return contents == nullptr ? std::nullopt : std::optional(*contents);
}

std::map<std::string, platform::Dictionary> Disk::propertyLists() const {
    std::map<std::string, platform::Dictionary> lists;
    for (const auto& [path, entry] : entries_)
        if (const auto* const contents = std::get_if<platform::Dictionary>(&entry))
            lists.emplace(path, *contents);
    return lists;
}

} // namespace qbsp::simulated
