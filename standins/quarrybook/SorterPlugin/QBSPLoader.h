#pragma once

#import <Foundation/Foundation.h>

/// Where the host's plug-ins find its registrar, by name.
@interface QBSPLoader : NSObject

/// The one registrar of the process.
+ (id)defaultLoader;

@end
