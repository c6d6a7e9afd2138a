// JSON, as all that is said here.
#include "serve/Orders.hpp"

#include <nlohmann/json.hpp>

namespace serve {

NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE(Turn, lines, draw, views, happenings)
NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE(Opening, ios, screen, withAddOn, world, calls, data, turn)
NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE(Refusal, line, why)
NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE(Outcome, refusals, picture, pictures, isLively, warnings)

namespace {

using nlohmann::json;

/// What a phone says may be no UTF-8.
std::string dumped(const json &value) {
    return value.dump(-1, ' ', false, json::error_handler_t::replace);
}

}  // namespace

std::string text(const Opening &opening) { return dumped(opening); }

std::string text(const Turn &turn) { return dumped(turn); }

std::string text(const Outcome &outcome) { return dumped(outcome); }

Opening readOpening(const std::string &text) { return json::parse(text).get<Opening>(); }

Turn readTurn(const std::string &text) { return json::parse(text).get<Turn>(); }

Outcome readOutcome(const std::string &text) { return json::parse(text).get<Outcome>(); }

}  // namespace serve
