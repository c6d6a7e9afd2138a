// Scrolling from the top to the end of a list of 10,000 calls in the simulated Phone application:
// what a row costs with the add-on and without it. Rows are laid out, not drawn. The first time the
// add-on asks the companion about every stranger; later it asks about those contacts alone who have
// several numbers, whose rows are put together anew each time.
#include <filesystem>

#include <benchmark/benchmark.h>
#include <unistd.h>

#include "Share.hpp"
#include "phone/recents/PHRecentCall.hpp"
#include "phone/recents/PHRecentsViewController.hpp"
#include "stage/Session.hpp"
#include "substrate/MSHookMessageEx.hpp"
#include "uikit/Foundation.hpp"
#include "uikit/SimTableView.hpp"

namespace {

using objc::send;
namespace fs = std::filesystem;

constexpr int kCalls = 10000;
constexpr CGFloat kStep = 44;  // points

using NumberOf = std::string (*)(int index);

/// A session whose add-on lays the recents' rows out or keeps away from them.
class Telephone {
  public:
    Telephone() = default;
    ~Telephone() { fs::remove_all(data_); }
    Telephone(const Telephone &) = delete;
    Telephone &operator=(const Telephone &) = delete;

    /// The add-on has looked nothing up yet.
    static void forgetRows() {
        send<void(NSObject)>(hook(), "onReloadCacheNotification:"_sel, NSObject());
    }
    static NSUInteger knownRows() {
        return send<NSDictionary()>(hook(), "numberInfoAndCallCacheDict"_sel).count();
    }

    /// Scrolls through a list that has just been opened; returns seconds a row.
    double scroll(NumberOf numberOf, bool withAddOn) {
        MSHookMessageEx("PHRecentsCell"_cls, "layoutSubviews"_sel,
                        withAddOn ? withAddOn_ : withoutAddOn_, nullptr);
        phone::PHRecentsViewController &list = open(numberOf);
        const double start = bench::processorSeconds();
        const auto steps = static_cast<int>(list.table()->contentSize().height / kStep);
        for (int step = 1; step <= steps; ++step) {
            const objc::AutoreleasePool pool;
            scrollTo(list, kStep * step);
        }
        return (bench::processorSeconds() - start) / kCalls;
    }

  private:
    static id hook() { return send<id()>("ZQSystemCallHistoryViewHook"_cls, "currentHook"_sel); }
    static IMP layout() {
        return class_getMethodImplementation("PHRecentsCell"_cls, "layoutSubviews"_sel);
    }
    static void scrollTo(phone::PHRecentsViewController &list, CGFloat points) {
        SimTableView *const table = list.table();
        send<void()>(*list.view(), "layoutIfNeeded"_sel);
        send<void(CGPoint)>(*table, "setContentOffset:"_sel, table->nearestRest({0, points}));
        send<void()>(*list.view(), "layoutIfNeeded"_sel);
    }
    phone::PHRecentsViewController &open(NumberOf numberOf) {
        const objc::AutoreleasePool pool;
        session_.open({stage::ScreenKind::Recents});
        std::vector<objc::Owned<NSObject>> calls;
        calls.reserve(kCalls);
        for (int i = 0; i < kCalls; ++i) {
            calls.push_back(phone::PHRecentCall::create(
                {.number = numberOf(i), .date = 1402545600.0 - 60.0 * i}));
        }
        phone::PHRecentsViewController &list = *session_.recents();
        list.setCalls(sim::array(calls));
        scrollTo(list, 0);
        return list;
    }

    const fs::path data_ = fs::temp_directory_path() / ("scroll-bench-" + std::to_string(getpid()));
    const IMP withoutAddOn_ = layout();
    stage::Session session_{{.model = {"7.1", "4"}, .data = data_, .fixedMeasurer = true}};
    const IMP withAddOn_ = layout();
};

Telephone *g_telephone = nullptr;

// Grouped as people write them, so that the simulated list has nothing to format.
std::string strangers(int index) {
    const std::string digits = std::to_string(100000000 + index);
    return "170-" + digits.substr(1, 4) + "-" + digits.substr(5);
}
std::string contactOfTwoNumbers(int) { return "138-2300-0021"; }

void scrollThrough(benchmark::State &state, NumberOf numberOf, bool isFirstTime) {
    double with = 0;
    double without = 0;
    Telephone::forgetRows();
    g_telephone->scroll(numberOf, true);
    for ([[maybe_unused]] auto _ : state) {
        without += g_telephone->scroll(numberOf, false);
        if (isFirstTime) {
            Telephone::forgetRows();
        }
        const double hooked = g_telephone->scroll(numberOf, true);
        with += hooked;
        state.SetIterationTime(hooked);
    }
    const auto runs = static_cast<double>(state.iterations());
    state.counters["row_ns"] = with / runs * 1e9;
    state.counters["row_without_ns"] = without / runs * 1e9;
    state.counters["ratio"] = with / without;
    if (numberOf == &strangers && Telephone::knownRows() < kCalls) {
        state.SkipWithError("rows were not looked up");
    }
}

BENCHMARK_CAPTURE(scrollThrough, strangers_first_time, &strangers, true)
    ->UseManualTime()
    ->Iterations(5);
BENCHMARK_CAPTURE(scrollThrough, strangers_again, &strangers, false)
    ->UseManualTime()
    ->Iterations(5);
BENCHMARK_CAPTURE(scrollThrough, contacts_of_two_numbers, &contactOfTwoNumbers, false)
    ->UseManualTime()
    ->Iterations(5);

}  // namespace

int main(int argc, char **argv) {
    Telephone telephone;
    g_telephone = &telephone;
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return EXIT_SUCCESS;
}
