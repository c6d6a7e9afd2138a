// What is remembered of views that have no room for it.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

#include "objc/Runtime.hpp"

/// Something about each of the last few views. Nobody says when a view goes and another one may get
/// its address: whoever adds a view remembers anew what belongs to it. Main thread only.
template <class T, size_t capacity>
class PerView {
  public:
    /// Null where nothing is remembered, or no longer.
    T *find(id view) {
        Entry *const entry = entryOf(view);
        return entry ? &entry->value : nullptr;
    }

    /// In place of what was remembered of `view`, or else of the view that came longest ago.
    void remember(id view, T value) {
        Entry *entry = entryOf(view);
        if (!entry) {
            entry = &entries_[next_];
            next_ = (next_ + 1) % capacity;
        }
        entry->view = view;
        entry->value = std::move(value);
    }

    void forget(id view) {
        if (Entry *const entry = entryOf(view)) {
            *entry = {};
        }
    }

  private:
    struct Entry {
        id view = nullptr;
        T value{};
    };

    Entry *entryOf(id view) {
        const auto found = std::ranges::find(entries_, view, &Entry::view);
        return view && found != entries_.end() ? &*found : nullptr;
    }

    std::array<Entry, capacity> entries_{};
    size_t next_ = 0;
};
