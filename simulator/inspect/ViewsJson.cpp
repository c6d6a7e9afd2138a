// The page's names for what a view is. What says nothing is left out: trees are long.
#include <cmath>
#include <utility>

#include <nlohmann/json.hpp>

#include "inspect/Views.hpp"

namespace inspect {
namespace {

using nlohmann::json;

const char *nameOf(Role role) {
    switch (role) {
    case Role::None:
        break;
    case Role::Button:
        return "button";
    case Role::Text:
        return "text";
    case Role::Row:
        return "row";
    case Role::List:
        return "list";
    case Role::Tab:
        return "tab";
    case Role::Image:
        return "image";
    }
    return "";
}

/// Of what is smaller nothing is seen. Adding zero turns -0 into 0.
double thousandths(double value) { return std::round(value * 1000) / 1000 + 0.0; }

json numbers(CGRect area) {
    return {thousandths(area.origin.x), thousandths(area.origin.y), thousandths(area.size.width),
            thousandths(area.size.height)};
}

void addText(json &into, const char *key, std::string_view text) {
    if (!text.empty()) {
        into[key] = text;
    }
}

void addIf(json &into, const char *key, bool value) {
    if (value) {
        into[key] = true;
    }
}

void addLook(const View &view, json &into) {
    if (view.text) {
        into["text"] = *view.text;
    }
    for (const Run &run : view.runs) {
        into["runs"].push_back({{"text", run.text}, {"color", run.color}, {"font", run.font}});
    }
    addText(into, "color", view.color);
    addText(into, "background", view.background);
    addText(into, "font", view.font);
    addText(into, "image", view.image);
    if (view.alpha != 1) {
        into["alpha"] = thousandths(view.alpha);
    }
    addIf(into, "hidden", view.hidden);
    addIf(into, "seen", view.seen);
}

json object(const View &view) {
    json result{{"id", view.id},
                {"class", view.className},
                {"frame", numbers(view.frame)},
                {"place", numbers(view.place)},
                {"owner", view.ofAddOn ? "add-on" : "phone"}};
    if (json shown = numbers(view.shown); view.seen && shown != result["place"]) {
        result["shown"] = std::move(shown);
    }
    if (view.tag != 0) {
        result["tag"] = view.tag;
    }
    addLook(view, result);
    addText(result, "touched", view.touched);
    addText(result, "role", nameOf(view.role));
    addText(result, "name", view.name);
    addIf(result, "disabled", view.disabled);
    addIf(result, "selected", view.selected);
    json &children = result["children"] = json::array();
    for (const View &child : view.children) {
        children.push_back(object(child));
    }
    return result;
}

}  // namespace

std::string viewsJson(SimView *root) {
    return object(viewTree(root)).dump(-1, ' ', false, json::error_handler_t::replace);
}

}  // namespace inspect
