#include "platform/PreferencePaneBase.h"

#include <gtest/gtest.h>

#include <memory>

namespace qbsp::platform {

namespace {

/// A platform's window, which says when it has gone.
class PlatformWindow final : public Window {
public:
    explicit PlatformWindow(bool& gone) : gone_(gone) {}

    ~PlatformWindow() override { gone_ = true; }

    PlatformWindow(const PlatformWindow&) = delete;
    PlatformWindow& operator=(const PlatformWindow&) = delete;

private:
    bool& gone_;
};

} // namespace

TEST(Window, IsDestroyedAsWhatThePlatformMadeIt) {
    bool gone = false;
    std::unique_ptr<Window> window = std::make_unique<PlatformWindow>(gone);

    window = nullptr;

    EXPECT_TRUE(gone);
}

} // namespace qbsp::platform
