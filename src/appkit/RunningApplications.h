#pragma once

#include "platform/RunningApplications.h"

namespace qbsp::appkit {

/// The applications that really run: one that was killed does not, nor does a process that merely bears the
/// name or the number of one.
class AppKitRunningApplications final : public platform::RunningApplications {
public:
    [[nodiscard]] bool applicationIsRunning(platform::BundleIdentifier identifier) const override;
};

} // namespace qbsp::appkit
