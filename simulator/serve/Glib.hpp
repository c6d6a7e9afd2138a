// GLib's objects and sources, owned as C++ owns things.
#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <utility>

#include <glib-object.h>

namespace serve {

struct Unref {
    void operator()(gpointer object) const { g_object_unref(object); }
};

/// A reference to a GObject of type T.
template <class T>
using Object = std::unique_ptr<T, Unref>;

/// Something that the main loop calls, again and again, as long as this object lives. The work may
/// stop or replace it.
class Source {
  public:
    using Work = std::function<void()>;

    Source() = default;
    static Source every(std::chrono::milliseconds time, Work work);
    /// Whenever the file can be read, or has come to its end.
    static Source onInput(int file, Work work);
    static Source onOutput(int file, Work work);
    static Source onSignal(int signal, Work work);
    Source(Source &&other) noexcept : number_(std::exchange(other.number_, 0)) {}
    Source &operator=(Source &&other) noexcept {
        std::swap(number_, other.number_);
        other.stop();
        return *this;
    }
    ~Source() { stop(); }

    void stop();
    bool isSet() const { return number_ != 0; }

  private:
    explicit Source(guint number) : number_(number) {}

    guint number_ = 0;
};

}  // namespace serve
