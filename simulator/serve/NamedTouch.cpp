// Where nothing has that name the point counts, as it was.
#include "serve/NamedTouch.hpp"

#include <cstdio>
#include <optional>
#include <sstream>

#include "inspect/Views.hpp"

namespace serve {
namespace {

constexpr std::string_view kDown = "down ";

bool holds(CGRect area, CGPoint point) {
    return point.x >= area.origin.x && point.x < area.origin.x + area.size.width &&
           point.y >= area.origin.y && point.y < area.origin.y + area.size.height;
}

/// Looks for what is seen and called so. `first` is the first of them; returns whether one of them
/// is at the point.
bool find(const inspect::View &view, const std::string &name, CGPoint point,
          std::optional<CGRect> &first) {
    if (view.seen && view.role != inspect::Role::None && view.name == name) {
        first = first.value_or(view.shown);
        if (holds(view.shown, point)) {
            return true;
        }
    }
    for (const inspect::View &child : view.children) {
        if (find(child, name, point, first)) {
            return true;
        }
    }
    return false;
}

size_t endOfPoint(const std::string &line) {
    return line.starts_with(kDown) ? std::min(line.find(' ', kDown.size()), line.size())
                                   : line.size();
}

}  // namespace

std::string withoutName(const std::string &line) { return line.substr(0, endOfPoint(line)); }

std::string placedByName(const std::string &line, SimView *root) {
    const size_t end = endOfPoint(line);
    double x = 0;
    double y = 0;
    if (end == line.size() || std::sscanf(line.c_str() + kDown.size(), "%lf,%lf", &x, &y) != 2) {
        return withoutName(line);
    }
    std::optional<CGRect> first;
    if (find(inspect::viewTree(root), line.substr(end + 1), {x, y}, first) || !first) {
        return withoutName(line);
    }
    std::ostringstream placed;
    placed << kDown << first->origin.x + first->size.width / 2 << ','
           << first->origin.y + first->size.height / 2;
    return placed.str();
}

}  // namespace serve
