#include "platform/URL.h"

namespace qbsp::platform {

namespace {

std::string_view withoutSlashesAtTheEnd(std::string_view path) {
    while (path.size() > 1 && path.ends_with('/'))
        path.remove_suffix(1);
    return path;
}

} // namespace

std::string appendingPathComponent(std::string_view path, std::string_view component) {
    const std::string folder(withoutSlashesAtTheEnd(path));
    const bool needsSlash = !folder.empty() && !folder.ends_with('/');
    return folder + (needsSlash ? "/" : "") + std::string(component);
}

std::string appendingPathExtension(std::string_view path, std::string_view extension) {
    return std::string(path) + "." + std::string(extension);
}

std::string deletingLastPathComponent(std::string_view path) {
    const std::string_view whole = withoutSlashesAtTheEnd(path);
    return std::string(withoutSlashesAtTheEnd(whole.substr(0, whole.rfind('/') + 1)));
}

std::string lastPathComponent(std::string_view path) {
    const std::string_view whole = withoutSlashesAtTheEnd(path);
    if (whole == "/")
        return "/";
    return std::string(whole.substr(whole.rfind('/') + 1));
}

std::string deletingPathExtension(std::string_view path) {
    const std::string_view whole = withoutSlashesAtTheEnd(path);
    const auto component = whole.rfind('/') + 1;
    const auto dot = whole.rfind('.');
    const bool hasExtension = dot != std::string_view::npos && dot > component;
    return std::string(hasExtension ? whole.substr(0, dot) : whole);
}

URL URL::appendingPathComponent(std::string_view component) const {
    return URL(platform::appendingPathComponent(path_, component));
}

} // namespace qbsp::platform
