#pragma once

namespace qbsp::platform {

/// The host's application object.
class Host {
public:
    virtual ~Host() = default;

    /// True in the build that runs sandboxed; false in the ordinary one and for a host without this message.
    [[nodiscard]] virtual bool isSandboxed() const = 0;

    /// True in the full edition; false in the Solo edition and for a host without this message.
    [[nodiscard]] virtual bool isPro() const = 0;
};

} // namespace qbsp::platform
