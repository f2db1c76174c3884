#pragma once

#include <functional>
#include <string>

/// Does that in a process of its own, and returns what it returned.
[[nodiscard]] std::string inAnotherProcess(const std::function<std::string()>& work);

/// As above, as a user who may do nothing in particular; in this process when that is another's than root's.
[[nodiscard]] std::string asAnotherUser(const std::function<std::string()>& work);

/// The text that names files of a process, of one that has ended.
[[nodiscard]] std::string textOfEndedProcess();

/// Does that in so many processes at once, and returns when all are done.
void runAtOnce(int processes, const std::function<void()>& work);
