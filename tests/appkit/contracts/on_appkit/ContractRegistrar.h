#pragma once

#import "appkit/services/SorterControlProtocol.h"

#include <string>
#include <vector>

namespace qbsp::contracts {

/// What the host's registrar was told, and whether it does what it is told.
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
