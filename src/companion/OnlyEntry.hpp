// Containers for one entry: the call on screen has one number. Keeping an entry lets the one before
// it go.
#pragma once

#include "platform/Foundation.hpp"

namespace companion {

template <class Container>
void makeRoom(Container container) {
    if (container.count() == 1) {
        container.removeAllObjects();
    }
}

/// Neither may be nil; both may be owned by what goes.
inline void keepOnly(NSMutableDictionary container, NSObject object, NSString key) {
    const auto heldObject = objc::Owned<NSObject>::share(object);
    const auto heldKey = objc::Owned<NSString>::share(key);
    makeRoom(container);
    container.setObject(object, key);
}

inline void keepOnly(NSMutableSet container, NSString entry) {
    const auto held = objc::Owned<NSString>::share(entry);
    makeRoom(container);
    container.addObject(entry);
}

}  // namespace companion
