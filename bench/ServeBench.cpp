// What a finger costs that drags the served phone: from its message to the picture's bytes, counted
// in processor time of the server and of the phones' processes; and how long it takes until a phone
// that has just been asked for is seen. Over the real socket, which this process reads from.
#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <iterator>
#include <memory>
#include <sstream>

#include <benchmark/benchmark.h>
#include <gio/gio.h>

#include "serve/Visit.hpp"

namespace {

using Clock = std::chrono::steady_clock;
using Strings = std::vector<std::string>;

double processorMilliseconds(int process) {
    clockid_t clock = 0;
    timespec time{};
    if (clock_getcpuclockid(process, &clock) != 0 || clock_gettime(clock, &time) != 0) {
        return 0;
    }
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

class ServerProcess {
  public:
    ServerProcess()
        : process_(g_subprocess_new(G_SUBPROCESS_FLAGS_STDOUT_PIPE, nullptr, PHONE_SIMULATOR,
                                    "serve", "--port", "0", nullptr)) {
        const serve::Object<GDataInputStream> out(
            g_data_input_stream_new(g_subprocess_get_stdout_pipe(process_.get())));
        const std::unique_ptr<char, decltype(&g_free)> line(
            g_data_input_stream_read_line(out.get(), nullptr, nullptr, nullptr), &g_free);
        const std::string address = line.get();
        port_ = static_cast<unsigned>(std::stoul(address.substr(address.rfind(':') + 1)));
    }
    ~ServerProcess() {
        g_subprocess_send_signal(process_.get(), SIGTERM);
        g_subprocess_wait(process_.get(), nullptr, nullptr);
    }
    ServerProcess(const ServerProcess &) = delete;
    ServerProcess &operator=(const ServerProcess &) = delete;

    unsigned port() const { return port_; }
    /// Of the server.
    double own() const { return processorMilliseconds(std::stoi(number())); }
    /// Of all its phones that live.
    double phones() const {
        std::ifstream children("/proc/" + number() + "/task/" + number() + "/children");
        double sum = 0;
        for (int phone = 0; children >> phone;) {
            sum += processorMilliseconds(phone);
        }
        return sum;
    }
    double both() const { return own() + phones(); }

  private:
    std::string number() const { return g_subprocess_get_identifier(process_.get()); }

    serve::Object<GSubprocess> process_;
    unsigned port_ = 0;
};

const Strings kAlone = {"with"};
const Strings kBoth = {"without", "with"};

double median(std::vector<double> values) {
    std::ranges::sort(values);
    return values.empty() ? 0 : values[values.size() / 2];
}

/// Whether each side has shown more pictures than before.
bool hasMore(test::Visit &visit, const Strings &sides, const std::vector<std::uint32_t> &before) {
    return test::waitUntil([&] {
        return std::ranges::equal(sides, before, [&](const auto &side, std::uint32_t number) {
            return visit.pictures(side) > number;
        });
    });
}

/// A drag from a point, by so much with each message, while the phones' own time stands still.
void drag(benchmark::State &state, const Strings &sides, double x, double y, double byX,
          double byY) {
    constexpr int kMoves = 30;
    const ServerProcess server;
    test::Visit visit(server.port());
    const auto touch = [&](const char *step) {
        std::ostringstream line;
        line << step << ' ' << x << ',' << y;
        visit.step(line.str());
        x += byX;
        y += byY;
    };
    visit.open("7.1", sides, {"tab recents"});
    visit.told("opened");
    visit.settle();
    visit.ask({{"ask", "speed"}, {"speed", 0}});
    touch("down");
    for (int i = 0; i < 5; ++i) {  // until it is taken for a drag
        touch("move");
    }
    visit.settle();
    std::vector<double> costs;
    const size_t bytes = visit.bytes();
    for ([[maybe_unused]] auto _ : state) {
        for (int i = 0; i < kMoves; ++i) {
            const double start = server.both();
            std::vector<std::uint32_t> before;
            for (const std::string &side : sides) {
                before.push_back(visit.pictures(side));
            }
            touch("move");
            hasMore(visit, sides, before);
            costs.push_back(server.both() - start);
        }
    }
    state.counters["cpu_ms_median"] = median(costs);
    state.counters["cpu_ms_a_phone"] = median(costs) / static_cast<double>(sides.size());
    state.counters["bytes"] =
        static_cast<double>(visit.bytes() - bytes) / static_cast<double>(costs.size());
}

/// Seconds from the request until all pictures are there.
void open(benchmark::State &state, const Strings &sides, int events) {
    const ServerProcess server;
    test::Visit visit(server.port());
    Strings steps = {"tab recents"};
    while (static_cast<int>(steps.size()) < events) {
        for (const char *const line : {"swipe 1", "release", "wait 0.3", "open 2", "back"}) {
            steps.emplace_back(line);
        }
    }
    visit.open("7.0", sides);
    visit.told("opened");
    visit.settle();
    for ([[maybe_unused]] auto _ : state) {
        const auto start = Clock::now();
        const double used = server.own();
        visit.open("7.1", sides, steps);
        visit.told("opened");
        hasMore(visit, sides, std::vector<std::uint32_t>(sides.size()));
        state.SetIterationTime(std::chrono::duration<double>(Clock::now() - start).count());
        // The phones before are gone, and these are new.
        state.counters["cpu_ms"] = server.own() - used + server.phones();
        visit.settle();
    }
}

BENCHMARK_CAPTURE(drag, list, kAlone, 160, 500, 0, -4)->Iterations(1);
BENCHMARK_CAPTURE(drag, list_of_two_phones, kBoth, 160, 500, 0, -4)->Iterations(1);
BENCHMARK_CAPTURE(drag, row, kAlone, 300, 150, -4, 0)->Iterations(1);
BENCHMARK_CAPTURE(drag, row_of_two_phones, kBoth, 300, 150, -4, 0)->Iterations(1);
BENCHMARK_CAPTURE(open, first_picture, kAlone, 0)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(5);
BENCHMARK_CAPTURE(open, switch_with_50_events, kAlone, 50)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(5);
BENCHMARK_CAPTURE(open, switch_of_two_with_50_events, kBoth, 50)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(5);

}  // namespace

BENCHMARK_MAIN();
