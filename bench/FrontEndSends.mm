// The same sends compiled by the Objective-C front end. The receiver's structs are
// declared here anew, since the bridge's headers cannot be included.
#include <objc/objc.h>

#include "Sends.hpp"

struct CGPoint {
    double x, y;
};
struct CGSize {
    double width, height;
};
struct CGRect {
    CGPoint origin;
    CGSize size;
};

@protocol Probe
- (int)order;
- (CGRect)frame;
- (void)setFrame:(CGRect)frame;
@end

namespace bench {
namespace {

double integerResult(void *receiver, long count) {
    const id<Probe> probe = (id<Probe>)receiver;
    double sum = 0;
    for (long i = 0; i < count; ++i) {
        sum += [probe order];
    }
    return sum;
}

double structResult(void *receiver, long count) {
    const id<Probe> probe = (id<Probe>)receiver;
    double sum = 0;
    for (long i = 0; i < count; ++i) {
        sum += [probe frame].size.width;
    }
    return sum;
}

double structArgument(void *receiver, long count) {
    const id<Probe> probe = (id<Probe>)receiver;
    for (long i = 0; i < count; ++i) {
        [probe setFrame:CGRect{{1, 2}, {3, static_cast<double>(i)}}];
    }
    return static_cast<double>(count);
}

}  // namespace

const Sends kFrontEndSends{integerResult, structResult, structArgument};

}  // namespace bench
