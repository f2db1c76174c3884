#import <AppKit/AppKit.h>

#include <benchmark/benchmark.h>

namespace benchmarks {
void addListBenchmarks();
}

int main(int argc, char** argv) {
    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
    // The shared defaults must exist before any other instance.
    [NSUserDefaults standardUserDefaults];
    benchmarks::addListBenchmarks();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    [pool release];
    return 0;
}
