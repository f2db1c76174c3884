#pragma once

#import "PaneControls.h"
#import "QBSPPreferencesWindow.h"
#include "ScenarioLine.h"

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace quarrybook {

/// What a command came to.
struct Outcome {
    std::vector<std::string> answer; ///< lines to print
    double pause = 0;                ///< seconds to let pass before the next command
    std::function<bool()> condition; ///< what must come true before the next command; empty: nothing
};

/// The commands of a scenario, each done in the real window as a user would do it.
class Commands {
  public:
    Commands(QBSPPreferencesWindow* preferences, QBSPPaneRunner* runner)
        : preferences_(preferences), runner_(runner) {}

    /// Throws ScenarioError when there is no such command or it does not take these arguments; nothing was
    /// done.
    void check(const std::vector<Argument>& words) const;

    /// True for a command that is itself what is to be read.
    [[nodiscard]] static bool speaksForItself(const std::vector<Argument>& words);

    /// Does it. Throws ScenarioError when it cannot be done now.
    [[nodiscard]] Outcome perform(const std::vector<Argument>& words);

  private:
    using Arguments = std::vector<Argument>;
    using Action = Outcome (Commands::*)(const Arguments&);

    struct Command {
        const char* name;
        std::size_t arguments;
        const char* usage;
        Action action;
    };

    [[nodiscard]] static const Command* find(const std::string& name);

    // The pane
    Outcome create(const Arguments&);
    Outcome loadView(const Arguments&);
    Outcome select(const Arguments&);
    Outcome unselect(const Arguments&);

    // Its controls
    Outcome edit(const Arguments&);
    Outcome toggle(const Arguments&);
    Outcome reset(const Arguments&);
    Outcome add(const Arguments&);
    Outcome set(const Arguments&);
    Outcome change(const Arguments&);
    Outcome offer(const Arguments&);

    // What they show
    Outcome value(const Arguments&);
    Outcome rows(const Arguments&);
    Outcome findName(const Arguments&);
    Outcome state(const Arguments&);

    // The window and what stands before it
    Outcome press(const Arguments&);
    Outcome choose(const Arguments&);
    Outcome say(const Arguments&);
    Outcome wait(const Arguments&);
    Outcome until(const Arguments&);
    Outcome resize(const Arguments&);
    Outcome picture(const Arguments&);
    Outcome close(const Arguments&);

    [[nodiscard]] PaneControls controls() const;
    [[nodiscard]] NSButton* button(const std::string& field) const;
    [[nodiscard]] NSView* recorder(const Argument& which) const;
    [[nodiscard]] NSTableColumn* column(const Argument& identifier) const;
    [[nodiscard]] NSInteger row(const Argument& argument) const;
    void record(NSView* recorder, const Argument& code, const Argument& flags) const;

    QBSPPreferencesWindow* preferences_;
    QBSPPaneRunner* runner_;
};

} // namespace quarrybook
