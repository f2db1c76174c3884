#include "pane/PaneControls.h"

#include <gtest/gtest.h>

#include <string_view>
#include <vector>

namespace qbsp {

namespace {

template <class Control>
using Times = int;

} // namespace

TEST(PaneControls, AreVisitedInTheOrderOfTheirFields) {
    std::vector<std::string_view> names;

    forEachControl([&](std::string_view name) { names.push_back(name); });

    EXPECT_EQ(names.size(), 14U) << "the view has 14 controls";
    EXPECT_EQ(names.front(), "clipHotKeyRecorder");
    EXPECT_EQ(names.back(), "hideAppLabel");
}

TEST(PaneControls, AreVisitedInSeveralSetsTogether) {
    ControlSet<Times> first{};
    ControlSet<Times> second{};
    second.visibilityLabel = 3;

    forEachControl([](std::string_view, int& to, const int& from) { to += from + 1; }, first, second);

    EXPECT_EQ(first.visibilityLabel, 4);
    EXPECT_EQ(first.hideAppLabel, 1);
}

TEST(PaneControls, CanBeReadFromAConstantSet) {
    const PaneControls controls;
    int connected = 0;

    forEachControl([&](std::string_view, const auto& control) { connected += control.isConnected(); },
                   controls);

    EXPECT_EQ(connected, 0);
}

} // namespace qbsp
