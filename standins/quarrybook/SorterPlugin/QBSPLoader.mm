#import "QBSPLoader.h"

#import "QBSPSorterRegistrar.h"

@implementation QBSPLoader

+ (id)defaultLoader {
    static QBSPSorterRegistrar* registrar = [[QBSPSorterRegistrar alloc] init];
    return registrar;
}

@end
