// Objects that the bridge's tests send to: they count their lives and carry a variable of each
// kind.
#pragma once

#include <functional>

#include "objc/ClassBuilder.hpp"
#include "objc/Owned.hpp"
#include "platform/Foundation.hpp"

namespace test {

class Probe : public objc::Instance {
  public:
    Probe() : Instance() { ++g_living; }
    ~Probe();

    static int living() { return g_living; }
    /// Called at the end of every probe's life; null takes it away.
    static void onDestroy(std::function<void()> callback) { g_onDestroy = std::move(callback); }

    CGRect frame() const { return _frame; }
    void setFrame(CGRect frame) { _frame = frame; }
    NSString title() const { return _title; }
    void setTitle(NSString title) { _title = objc::Owned<NSString>::share(title); }
    bool flag() const { return _flag; }
    void setFlag(bool flag) { _flag = flag; }
    float ratio() const { return _ratio; }
    NSString echo(NSString text) const { return text; }
    double sum(int32_t a, float b, bool negated) const {
        return negated ? -(a + static_cast<double>(b)) : a + static_cast<double>(b);
    }
    int32_t order() const { return 1; }

    /// Registers the class once a process.
    static Class registered();

    objc::Owned<NSString> _title;
    bool _flag = true;
    float _ratio = 0.25F;
    CGRect _frame{};

  private:
    static inline int g_living = 0;
    static inline std::function<void()> g_onDestroy;
};

class DerivedProbe : public Probe {
  public:
    /// Its own answer behind its superclass's.
    int32_t order() const {
        return 10 * objc::sendSuper<DerivedProbe, int32_t()>(this, "order"_sel) + 2;
    }
    static Class registered();

    objc::Owned<NSString> _note = objc::Owned<NSString>::share("note"_ns);
    int32_t _count = 42;
};

class LateClass : public objc::Instance {};

objc::Owned<NSObject> newProbe();
objc::Owned<NSObject> newDerivedProbe();

}  // namespace test
