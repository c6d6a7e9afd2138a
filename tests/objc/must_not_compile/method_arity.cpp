// A method is registered under a selector with as many colons as it has arguments.
#include "objc/ClassBuilder.hpp"

class Counter : public objc::Instance {
  public:
    int count() const { return 0; }
};

Class define() {
    return objc::ClassBuilder<Counter>("Counter", "NSObject")
#ifdef MUST_NOT_COMPILE
        .method("count:"_sel, objc::member<&Counter::count>)
#endif
        .method("count"_sel, objc::member<&Counter::count>)
        .finish();
}
