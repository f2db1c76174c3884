#pragma once

#import <Foundation/Foundation.h>

/// Gives the host's plug-ins its registrar; they look this class up by name.
@interface QBSPLoader : NSObject

/// The process's only registrar.
+ (id)defaultLoader;

@end
