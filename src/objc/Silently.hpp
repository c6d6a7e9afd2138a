// Where failures of ours end.
#pragma once

#include <utility>

namespace objc {

/// Runs work of ours whose failure the Phone application must not notice: whatever it throws,
/// Objective-C exceptions included, ends here. Returns whether the work came to its end.
///
/// One thing still ends the process: a `release`, `drain` or `dealloc` that raises while a scope is
/// left (see owned.hpp). The object is then half gone, and nothing that follows could be relied on.
template <class Work>
bool silently(Work work) {
    try {
        work();
        return true;
    } catch (...) {  // the host's own behaviour is the fallback
        return false;
    }
}

/// Puts back at the end of a scope what was changed in it, unless the change was completed: what
/// raises half-way leaves all of it or nothing.
template <class PutBack>
class Undo {
  public:
    explicit Undo(PutBack putBack) : putBack_(std::move(putBack)) {}
    Undo(const Undo &) = delete;
    Undo &operator=(const Undo &) = delete;
    ~Undo() {
        if (!isKept_) {
            silently(putBack_);
        }
    }

    /// The change is complete.
    void keep() { isKept_ = true; }

  private:
    PutBack putBack_;
    bool isKept_ = false;
};

}  // namespace objc
