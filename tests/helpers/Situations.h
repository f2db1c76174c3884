#pragma once

#include "Asked.h"
#include "Stage.h"

#include <gtest/gtest.h>

#include <ostream>

namespace qbsp {

enum class Registrar { agrees, refuses, empty, absent };
enum class Running { nobody, editionsSorter, embeddedSorter };

/// Everything that decides what the pane does when it is shown, left, clicked or reset.
struct Situation {
    bool sandboxed;
    bool pro;
    Registrar registrar;
    Running running;
    bool shouldRestart;
    bool deleteSettings;
    bool hideAppsUpdated;
    platform::ButtonState login;
    platform::ButtonState visibility;

    [[nodiscard]] bool hasRegistrar() const {
        return !sandboxed && (registrar == Registrar::agrees || registrar == Registrar::refuses);
    }

    [[nodiscard]] bool editionsSorterRuns() const { return running == Running::editionsSorter; }

    [[nodiscard]] bool embeddedSorterRuns() const { return running == Running::embeddedSorter; }

    /// Whether the Sorter that the button starts and stops runs.
    [[nodiscard]] bool buttonsSorterRuns() const {
        return sandboxed ? embeddedSorterRuns() : editionsSorterRuns();
    }

    [[nodiscard]] const char* editionsSorter() const { return pro ? full : solo; }

    [[nodiscard]] const char* othersSorter() const { return pro ? solo : full; }
};

inline std::ostream& operator<<(std::ostream& out, const Situation& s) {
    return out << (s.sandboxed ? "sandboxed" : "ordinary") << (s.pro ? " full" : " solo") << " registrar "
               << static_cast<int>(s.registrar) << " running " << static_cast<int>(s.running) << " restart "
               << s.shouldRestart << " delete " << s.deleteSettings << " updated " << s.hideAppsUpdated
               << " login " << static_cast<int>(s.login) << " visibility " << static_cast<int>(s.visibility);
}

/// A pane that is put into one situation after another, which may differ in what runs and in the check boxes.
/// Each edition's domain holds a list of one row, off; where the list is marked as changed, the row was
/// ticked.
class SituatedPane : public Stage {
public:
    explicit SituatedPane(const Situation& s) {
        world.sandboxed = s.sandboxed;
        world.pro = s.pro;
        world.registrarAdds = world.registrarRemoves = s.registrar == Registrar::agrees;
        world.loader = s.registrar == Registrar::absent  ? simulated::Loader::absent
                       : s.registrar == Registrar::empty ? simulated::Loader::empty
                                                         : simulated::Loader::present;
        loadView();
    }

    void enter(const Situation& s) {
        world.running = {s.running == Running::embeddedSorter ? embedded : s.editionsSorter()};
        if (s.running == Running::nobody)
            world.running.clear();
        for (const char* const sorter : {full, solo})
            storeHideList(sorter, storedList(sorter));
        pane().loadHideAppData();
        raiseFlags(s);
        controls().showAtLoginCheckbox->setState(s.login);
        controls().visibilityButton->setState(s.visibility);
        controls().toggleLaunchButton->setTitle("before");
        forget();
    }

    [[nodiscard]] static platform::Value storedList(const char* sorter, bool ticked = false) {
        return platform::Dictionary{{std::string("Of ") + sorter, ticked}};
    }

private:
    void raiseFlags(const Situation& s) {
        if (s.shouldRestart)
            pane().enableAttentionLabel(nullptr);
        if (s.deleteSettings)
            pane().setDeleteFullScreenSettingsInSorter(true);
        if (s.hideAppsUpdated)
            editRow(0, true);
    }
};

/// Whether the two check boxes vary independently, or together where neither is read.
enum class CheckBoxes { each, together };

/// Calls visit with the situation's every combination of what runs and what the check boxes show.
template <class Visit>
void varyTheRest(Situation s, CheckBoxes boxes, Visit visit) {
    const auto states = {platform::ButtonState::mixed, platform::ButtonState::off, platform::ButtonState::on};
    for (const auto running : {Running::nobody, Running::editionsSorter, Running::embeddedSorter})
        for (const auto login : states)
            for (const auto visibility : states) {
                s.running = running;
                s.login = login;
                s.visibility = visibility;
                if (boxes == CheckBoxes::each || login == visibility)
                    visit(s);
            }
}

/// Every combination of build, edition and flags with that registrar.
inline std::vector<Situation> builds(Registrar registrar) {
    std::vector<Situation> all;
    for (unsigned bits = 0; bits < 32; ++bits)
        all.push_back({(bits & 1U) != 0, (bits & 2U) != 0, registrar, Running::nobody, (bits & 4U) != 0,
                       (bits & 8U) != 0, (bits & 16U) != 0, platform::ButtonState::off,
                       platform::ButtonState::off});
    return all;
}

/// Checks the rules in every situation with these registrars, up to the first in which one is broken.
template <class Rules>
void checkInAllSituations(std::initializer_list<Registrar> registrars, CheckBoxes boxes, Rules rules) {
    for (const Registrar registrar : registrars)
        for (const Situation& build : builds(registrar)) {
            SituatedPane stage(build);
            varyTheRest(build, boxes, [&](const Situation& situation) {
                if (testing::Test::HasFailure())
                    return;
                stage.enter(situation);
                rules(situation, stage);
                EXPECT_FALSE(testing::Test::HasFailure()) << "when " << situation;
            });
        }
}

} // namespace qbsp
