#pragma once

#include <string>
#include <string_view>
#include <utility>

namespace qbsp::platform {

/// The path with one more component, separated by exactly one slash.
[[nodiscard]] std::string appendingPathComponent(std::string_view path, std::string_view component);

/// The path with "." and the extension at its end.
[[nodiscard]] std::string appendingPathExtension(std::string_view path, std::string_view extension);

/// The path without its last component; "/" stays "/", and of a single name nothing is left.
[[nodiscard]] std::string deletingLastPathComponent(std::string_view path);

/// The last component, without slashes at its end; "/" for the root.
[[nodiscard]] std::string lastPathComponent(std::string_view path);

/// The path without the extension of its last component. A dot that begins the component begins no extension.
[[nodiscard]] std::string deletingPathExtension(std::string_view path);

/// A file URL, known by its path.
class URL {
public:
    /// The URL of the file or folder at that path.
    [[nodiscard]] static URL fileURLWithPath(std::string path) { return URL(std::move(path)); }

    [[nodiscard]] const std::string& path() const { return path_; }

    /// The URL of that path with one more component.
    [[nodiscard]] URL appendingPathComponent(std::string_view component) const;

    friend bool operator==(const URL&, const URL&) = default;

private:
    explicit URL(std::string path) : path_(std::move(path)) {}

    std::string path_;
};

} // namespace qbsp::platform
