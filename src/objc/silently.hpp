// Where failures of ours end.
#pragma once

namespace objc {

/// Runs work of ours whose failure the Phone application must not notice: whatever it throws,
/// Objective-C exceptions included, ends here.
template <class Work>
void silently(Work work) {
    try {
        work();
    } catch (...) {  // the host's own behaviour is the fallback
    }
}

}  // namespace objc
