// Delta debugging: what of a list is needed for it to go on failing.
#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

namespace monkey {

/// Leaves out parts of `items`, large ones first, as long as `fails` holds for what is left, and
/// returns a list of which no single item can be left out; with fewer than `most` trials, or else
/// as short as it had become by then. `fails` holds for `items`.
template <class Item, class Fails>
std::vector<Item> shortest(std::vector<Item> items, const Fails &fails, int most) {
    // Nearly always the end is where it fails and much of the beginning does not matter, so parts
    // are left out from the front.
    for (std::size_t part = std::max<std::size_t>(items.size() / 2, 1);;) {
        bool isShorter = false;
        for (std::size_t at = 0; at < items.size();) {
            if (most-- == 0) {
                return items;
            }
            std::vector<Item> left(items.begin(), items.begin() + static_cast<std::ptrdiff_t>(at));
            const std::size_t next = std::min(at + part, items.size());
            left.insert(left.end(), items.begin() + static_cast<std::ptrdiff_t>(next), items.end());
            if (fails(left)) {
                items = std::move(left);
                isShorter = true;
            } else {
                at = next;
            }
        }
        if (part == 1 && !isShorter) {
            return items;
        }
        part = isShorter && part == 1 ? 1 : std::max<std::size_t>(part / 2, 1);
    }
}

}  // namespace monkey
