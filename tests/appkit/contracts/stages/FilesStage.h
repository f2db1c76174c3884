#pragma once

#include "platform/FileManager.h"
#include "platform/PropertyLists.h"

#include <memory>
#include <string>

namespace qbsp::contracts {

/// A disk with one empty folder for the test.
class FilesStage {
public:
    static std::unique_ptr<FilesStage> simulated();
    static std::unique_ptr<FilesStage> appKit();

    virtual ~FilesStage() = default;

    [[nodiscard]] virtual platform::FileManager& files() = 0;
    [[nodiscard]] virtual platform::PropertyLists& propertyLists() = 0;

    /// The path of the test's folder.
    [[nodiscard]] virtual std::string folder() const = 0;

    /// Puts a file there that is no property list.
    virtual void putOtherFile(const std::string& path) = 0;

    /// From now on nothing can be made or written in the test's folder, or it can again.
    virtual void block() = 0;
    virtual void unblock() = 0;

    /// True when the file is an XML property list.
    [[nodiscard]] virtual bool isXML(const std::string& path) const = 0;
};

} // namespace qbsp::contracts
