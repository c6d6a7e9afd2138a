// Whatever people and files say may be no UTF-8; the page gets what can be read of it.
#include "serve/Reports.hpp"

#include <nlohmann/json.hpp>

#include "stage/Model.hpp"

namespace serve::report {
namespace {

using nlohmann::json;

std::string told(const json &report) {
    return report.dump(-1, ' ', false, json::error_handler_t::replace);
}

}  // namespace

std::string opened(const ask::Open &open, const std::vector<Side> &sides) {
    json names = json::array();
    for (const Side side : sides) {
        names.push_back(nameOf(side));
    }
    constexpr int kScale = 2;  // pixels a point
    const CGSize size = stage::modelNamed(open.ios, open.screen).screenSize();
    return told({{"tell", "opened"},
                 {"ios", open.ios},
                 {"screen", open.screen},
                 {"sides", names},
                 {"width", static_cast<int>(size.width) * kScale},
                 {"height", static_cast<int>(size.height) * kScale}});
}

std::string did(const std::vector<std::string> &lines) {
    return told({{"tell", "did"}, {"lines", lines}});
}

std::string refused(const std::string &line, const std::string &why) {
    return told({{"tell", "refused"}, {"line", line}, {"why", why}});
}

std::string mistakes(const std::string &name, const std::vector<std::string> &lines) {
    return told({{"tell", "mistakes"}, {"name", name}, {"lines", lines}});
}

std::string took(const std::string &name, const std::vector<std::string> &lines) {
    return told({{"tell", "took"}, {"name", name}, {"lines", lines}});
}

std::string failed(const std::string &why) { return told({{"tell", "failed"}, {"why", why}}); }

std::string died(Side side, const std::vector<std::string> &log) {
    return told({{"tell", "died"}, {"side", nameOf(side)}, {"log", log}});
}

std::string asleep() { return told({{"tell", "asleep"}}); }

std::string views(Side side, const std::string &root) {
    return R"({"tell":"views","side":")" + std::string(nameOf(side)) + R"(","root":)" + root + "}";
}

std::string happened(Side side, const std::string &line, const std::string &happenings) {
    std::string text = told({{"tell", "happened"}, {"side", nameOf(side)}, {"line", line}});
    text.pop_back();
    return text + R"(,"happenings":)" + happenings + "}";
}

}  // namespace serve::report
