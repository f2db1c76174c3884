#pragma once

#import "appkit/services/SorterControlProtocol.h"

#include <string>
#include <vector>

namespace qbsp::contracts {

/// The messages that the host's registrar received, and whether it refuses to change anything.
struct RegistrarState {
    bool refuses = false;
    bool isRegistered = false;
    std::vector<std::string> messages;
};

/// The state of the process's one registrar.
[[nodiscard]] RegistrarState& registrarState();

} // namespace qbsp::contracts

/// The host's registrar, which writes down every message.
@interface ContractRegistrar : NSObject <QBSPSorterControl>
@end

/// A class that hands the registrar out.
@interface ContractLoader : NSObject
+ (id)defaultLoader;
@end

/// A class that has none to hand out.
@interface ContractEmptyLoader : NSObject
+ (id)defaultLoader;
@end
