// UIDevice: what the process may know about the device it runs on.
#pragma once

#include "objc/class_builder.hpp"
#include "platform/UIKit.hpp"

class SimDevice : public objc::Instance {
  public:
    static void define();

    /// Made on first use, kept for the life of the process.
    static SimDevice *current();

    NSString systemVersion() const;
    NSString systemName() const { return "iPhone OS"_ns; }
    NSString model() const { return "iPhone"_ns; }
    NSString localizedModel() const { return model(); }
    NSString name() const { return model(); }
    /// 0: a phone.
    NSInteger userInterfaceIdiom() const { return 0; }
};
