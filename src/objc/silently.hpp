// Where failures of ours end.
#pragma once

namespace objc {

/// Runs work of ours whose failure the Phone application must not notice: whatever it throws,
/// Objective-C exceptions included, ends here. Answers whether the work came to its end.
template <class Work>
bool silently(Work work) {
    try {
        work();
        return true;
    } catch (...) {  // the host's own behaviour is the fallback
        return false;
    }
}

}  // namespace objc
