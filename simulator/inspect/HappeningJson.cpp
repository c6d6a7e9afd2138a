// The page's names for what a happening holds.
#include <nlohmann/json.hpp>

#include "inspect/Happening.hpp"

namespace inspect {
namespace {

using nlohmann::json;

const char *nameOf(Happening::Kind kind) {
    switch (kind) {
    case Happening::Kind::Method:
        return "method";
    case Happening::Kind::Asked:
        return "asked";
    case Happening::Kind::Message:
        return "message";
    case Happening::Kind::Later:
        return "later";
    case Happening::Kind::Address:
        return "address";
    case Happening::Kind::Note:
        break;
    }
    return "note";
}

json list(const std::vector<Happening> &happenings);

json object(const Happening &happening) {
    const bool isMethod = happening.kind == Happening::Kind::Method;
    json result{{"kind", nameOf(happening.kind)}, {isMethod ? "name" : "what", happening.what}};
    if (isMethod || happening.kind == Happening::Kind::Asked) {
        result["micros"] = happening.micros;
        result["thread"] = happening.thread;
        result["inside"] = list(happening.inside);
    }
    if (happening.kind == Happening::Kind::Asked) {
        result["arguments"] = happening.arguments;
        result["returned"] = happening.returned;
    }
    return result;
}

json list(const std::vector<Happening> &happenings) {
    json result = json::array();
    for (const Happening &happening : happenings) {
        result.push_back(object(happening));
    }
    return result;
}

}  // namespace

std::string happeningsJson(const std::vector<Happening> &happenings) {
    return list(happenings).dump(-1, ' ', false, json::error_handler_t::replace);
}

}  // namespace inspect
