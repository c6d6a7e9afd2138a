// What loading the add-on costs a process. A process can load it once, so each measurement is a
// process of its own: this program runs itself again and reads what it says.
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>
#include <string_view>

#include <benchmark/benchmark.h>
#include <dlfcn.h>
#include <unistd.h>

#include "companion/Companion.hpp"
#include "platform/Foundation.hpp"
#include "stage/MainBundle.hpp"
#include "uikit/Device.hpp"

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::string_view kLoad = "--load-into";

std::string g_program;

/// Loads the add-on into this process and prints how many seconds that took.
int loadAndTell(const char *identifier) {
    const objc::AutoreleasePool pool;
    sim::Device::setCurrent({"7.0", {320, 480}, 2});
    stage::setMainBundleIdentifier(identifier);
    // Neither is the add-on's doing: Foundation works its main bundle out when it is first asked,
    // and the companion makes its store when nobody has opened one.
    NSBundle::mainBundle().bundleIdentifier();
    companion::open({});
    const auto start = Clock::now();
    void *const library = dlopen(ZQDIAL_LIBRARY, RTLD_NOW);
    const double taken = std::chrono::duration<double>(Clock::now() - start).count();
    if (!library) {
        std::fprintf(stderr, "load-bench: %s\n", dlerror());
        return EXIT_FAILURE;
    }
    std::printf("%.9f\n", taken);
    return EXIT_SUCCESS;
}

void load(benchmark::State &state, const char *identifier) {
    const std::string command = g_program + " " + std::string(kLoad) + " " + identifier;
    for ([[maybe_unused]] auto _ : state) {
        const std::unique_ptr<FILE, int (*)(FILE *)> child(popen(command.c_str(), "r"), pclose);
        double taken = 0;
        if (!child || std::fscanf(child.get(), "%lf", &taken) != 1) {
            state.SkipWithError("the add-on could not be loaded");
            return;
        }
        state.SetIterationTime(taken);
    }
}

void median(benchmark::internal::Benchmark *benchmark) {
    benchmark->UseManualTime()
        ->Unit(benchmark::kMicrosecond)
        ->Iterations(1)
        ->Repetitions(31)
        ->ReportAggregatesOnly();
}

BENCHMARK_CAPTURE(load, foreign_process, "com.example.app")->Apply(median);
BENCHMARK_CAPTURE(load, phone_application, "com.apple.mobilephone")->Apply(median);

}  // namespace

int main(int argc, char **argv) {
    if (argc == 3 && argv[1] == kLoad) {
        return loadAndTell(argv[2]);
    }
    g_program = argv[0];
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return EXIT_SUCCESS;
}
