#pragma once

#include "Stage.h"

#include <gtest/gtest.h>

namespace qbsp {

/// A test of the pane on the simulated platform. It fails when it leaves a suite added.
class PaneTest : public testing::Test, protected Stage {
protected:
    void TearDown() override {
        EXPECT_EQ(platform.preferences.openSuites(), 0U) << "a suite was added and not removed";
    }
};

} // namespace qbsp
