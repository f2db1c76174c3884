#include "EventLog.h"

#include "xdg/UserFolders.h"

#include <cstdlib>
#include <fstream>
#include <iostream>
#include <system_error>

namespace standin {

EventLog EventLog::ofUser() {
    const char* file = std::getenv("QUARRYBOOK_SORTER_LOG");
    return EventLog(file != nullptr ? std::filesystem::path(file)
                                    : xdg::stateHome() / "quarrybook" / "sorter.log");
}

void EventLog::write(const std::string& line) const {
    std::cout << line << std::endl;
    std::error_code failure;
    std::filesystem::create_directories(file_.parent_path(), failure);
    std::ofstream(file_, std::ios::app) << line + "\n";
}

} // namespace standin
