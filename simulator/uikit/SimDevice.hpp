// UIDevice: what the process may know about the device it runs on.
#pragma once

#include <string>

#include "objc/ClassBuilder.hpp"
#include "platform/UIKit.hpp"

class SimDevice : public objc::Instance {
  public:
    static void define();

    /// Made on first use, kept for the life of the process.
    static SimDevice *current();

    /// The same string as long as the device model stays the same.
    NSString systemVersion();
    NSString systemName() const { return "iPhone OS"_ns; }
    NSString model() const { return "iPhone"_ns; }
    NSString localizedModel() const { return model(); }
    NSString name() const { return model(); }
    /// 0: a phone.
    NSInteger userInterfaceIdiom() const { return 0; }

  private:
    std::string version_;
    objc::Owned<NSString> versionText_;
};
