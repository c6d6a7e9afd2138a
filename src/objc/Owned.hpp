// Ownership as scope: an Owned releases at its end what alloc, copy or retain gave it, a pool
// drains, a monitor leaves. Plain handles never retain or release.
//
// None of these ends may raise: a destructor has nowhere to report to, so an exception out of the
// object's own `dealloc` ends the process. That is meant: such an object is half destroyed.
#pragma once

#include <concepts>
#include <utility>

#include "objc/Handle.hpp"

namespace objc {

// Not inline: they stand at hundreds of places. Nil is fine.
void retain(id object);
void release(id object) noexcept;
void autorelease(id object);

/// What can be owned: a handle, or a pointer to an object of a class of ours. Asked where an
/// Owned<T> ends, so that T may still be incomplete where only its name is used.
template <class T>
concept Ownable = Handle<T> || (std::is_pointer_v<T> && std::same_as<WireType<T>, id>);

template <class T>
class Owned {
  public:
    Owned() = default;

    /// Takes over the reference that alloc, init, new or copy gave the caller.
    static Owned adopt(T object) { return Owned(object); }

    /// Adds a reference of its own to an object that somebody else owns.
    static Owned share(T object) {
        retain(Wire<T>::to(object));
        return Owned(object);
    }

    Owned(const Owned &) = delete;
    Owned(Owned &&other) noexcept : object_(std::exchange(other.object_, T())) {}
    // By swapping, so that the old object goes last: its dealloc may look at this very variable.
    Owned &operator=(Owned other) noexcept {
        std::swap(object_, other.object_);
        return *this;
    }
    ~Owned() {
        static_assert(Ownable<T>, "only handles and objects of our own classes can be owned");
        release(Wire<T>::to(object_));
    }

    T get() const { return object_; }
    auto operator->() const {
        if constexpr (std::is_pointer_v<T>) {
            return object_;
        } else {
            return &object_;
        }
    }
    // Implicit: an owned object may be used wherever one is asked for
    operator T() const { return object_; }
    operator id() const
        requires(!std::is_pointer_v<T>)
    {
        return object_;
    }
    explicit operator bool() const { return Wire<T>::to(object_) != nullptr; }

    /// The same reference under another type; the caller vouches for it, as with any cast.
    template <class U>
    Owned<U> as() && {
        return Owned<U>::adopt(Wire<U>::from(Wire<T>::to(leak())));
    }

    /// Hands the reference to the caller, who releases it.
    [[nodiscard]] T leak() { return std::exchange(object_, T()); }

    /// Gives the object to the innermost pool, as a method does with a result it does not keep.
    T autorelease() {
        const T object = leak();
        objc::autorelease(Wire<T>::to(object));
        return object;
    }

  private:
    explicit Owned(T object) : object_(object) {}

    T object_{};
};

/// [[T alloc] init...] with the initialiser's signature:
/// create<UILabel(CGRect)>("initWithFrame:"_sel, frame). A missing class gives an empty Owned.
template <class Signature>
struct Creation;

template <Handle T, class... Args>
struct Creation<T(Args...)> {
    template <Literal name>
    static Owned<T> create(Selector<name> initialiser, Args... args) {
        const id allocated = send<id()>(T::classObject(), "alloc"_sel);
        return Owned<T>::adopt(send<T(Args...)>(allocated, initialiser, args...));
    }
};

template <class Signature, Literal name, class... Args>
auto create(Selector<name> initialiser, const Args &...args) {
    return Creation<Signature>::create(initialiser, args...);
}

/// [[T alloc] init]
template <Handle T>
Owned<T> create() {
    return Creation<T()>::create("init"_sel);
}

class AutoreleasePool {
  public:
    AutoreleasePool()
        : pool_(send<id()>(send<id()>("NSAutoreleasePool"_cls, "alloc"_sel), "init"_sel)) {}
    AutoreleasePool(const AutoreleasePool &) = delete;
    AutoreleasePool &operator=(const AutoreleasePool &) = delete;
    ~AutoreleasePool() { send<void()>(pool_, "drain"_sel); }

  private:
    id pool_;
};

/// The runtime's re-entrant lock of one object, held for a scope; left when an exception passes.
class Monitor {
  public:
    explicit Monitor(id object) : object_(object) { objc_sync_enter(object_); }
    Monitor(const Monitor &) = delete;
    Monitor &operator=(const Monitor &) = delete;
    ~Monitor() { objc_sync_exit(object_); }

  private:
    id object_;
};

}  // namespace objc
