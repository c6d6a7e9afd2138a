// Chances that come out the same for the same seed, on every machine.
#pragma once

#include <cstddef>
#include <cstdint>
#include <random>
#include <span>
#include <utility>

namespace monkey {

class Random {
  public:
    explicit Random(std::uint64_t seed) : engine_(seed) {}

    /// From 0 to `count` - 1; `count` is at least 1. The standard's distributions are not the same
    /// in every library.
    std::size_t below(std::size_t count) { return engine_() % count; }
    int between(int least, int most) {
        return least + static_cast<int>(below(static_cast<std::size_t>(most - least) + 1));
    }
    bool percent(std::size_t chance) { return below(100) < chance; }

    /// One of a list that is not empty.
    template <class Items>
    const auto &oneOf(const Items &items) {
        return *(std::begin(items) + static_cast<std::ptrdiff_t>(below(std::size(items))));
    }

    /// One of a list, each with a chance in proportion to its first half.
    template <class Item>
    const Item &weighted(std::span<const std::pair<std::size_t, Item>> items) {
        std::size_t total = 0;
        for (const auto &[weight, item] : items) {
            total += weight;
        }
        std::size_t left = below(total);
        for (const auto &[weight, item] : items) {
            if (left < weight) {
                return item;
            }
            left -= weight;
        }
        return items.back().second;
    }

  private:
    std::mt19937_64 engine_;
};

}  // namespace monkey
