// phonecheck [7.0|7.1|8.0]: a command for a phone that holds its classes against the ledger of what
// the add-on uses and prints every entry that this phone contradicts. Without a version it takes
// the phone's own.
#undef OBJC_LEDGER  // for the add-on's own uses

#include <cstdio>
#include <cstring>

#include "Comparison.hpp"
#include "objc/Send.hpp"

extern "C" {
void *dlopen(const char *path, int mode);
char *dlerror();
int puts(const char *text);
}

namespace {

using objc::send;

// Where the classes are, as far as is known; a class that is nowhere is reported as missing.
constexpr const char *kImages[] = {
    "/System/Library/Frameworks/UIKit.framework/UIKit",
    "/System/Library/Frameworks/AddressBookUI.framework/AddressBookUI",
    "/System/Library/PrivateFrameworks/CallHistory.framework/CallHistory",
    "/System/Library/PrivateFrameworks/TelephonyUI.framework/TelephonyUI",
    "/System/Library/PrivateFrameworks/TelephonyUtilities.framework/TelephonyUtilities",
    "/Applications/InCallService.app/InCallService",
    "/Applications/MobilePhone.app/MobilePhone",
    "/Applications/zequor.app/libZQCommon.dylib",
};

struct Printer : members::Report {
    void contradiction(const char *line) override { puts(line); }
};

template <class... Args>
void print(const char *format, Args... args) {
    char line[1024];
    std::snprintf(line, sizeof line, format, args...);
    puts(line);
}

const char *versionOfPhone() {
    const id device = send<id()>("UIDevice"_cls, "currentDevice"_sel);
    const id version = send<id()>(device, "systemVersion"_sel);
    return send<const char *()>(version, "UTF8String"_sel);
}

struct System {
    const char *version;
    members::Systems bit;
};

/// Null for one that the add-on does not know.
const System *systemOf(const char *version) {
    static constexpr System kSystems[] = {
        {"7.0", members::kIos70}, {"7.1", members::kIos71}, {"8.", members::kIos80}};
    for (const System &system : kSystems) {
        if (version && std::strncmp(version, system.version, std::strlen(system.version)) == 0) {
            return &system;
        }
    }
    return nullptr;
}

void loadImages() {
    constexpr int kLazily = 1;  // RTLD_LAZY
    for (const char *const image : kImages) {
        if (!dlopen(image, kLazily)) {
            const char *const why = dlerror();
            print("phonecheck: %s was not loaded: %s", image, why ? why : "nobody says why");
        }
    }
}

}  // namespace

// Exported by name, so that other loaders than Apple's find it.
[[gnu::visibility("default")]] int main(int argc, char **argv) {
    loadImages();
    [[maybe_unused]] const id pool =
        send<id()>(send<id()>("NSAutoreleasePool"_cls, "alloc"_sel), "init"_sel);
    const char *const version = argc > 1 ? argv[1] : versionOfPhone();
    const System *const system = argc > 2 ? nullptr : systemOf(version);
    if (!system) {
        print("phonecheck: no classes are known for iOS '%s': say 7.0, 7.1 or 8.0",
              version ? version : "");
        return 2;
    }
    Printer printer;
    const members::Verdicts apple = members::compareApple(system->bit, printer);
    const members::Verdicts companion = members::compareCompanion(printer);
    const int contradicted = apple.contradicted + companion.contradicted;
    print("phonecheck: iOS %s: %d entries as expected, %d not", version,
          apple.confirmed + companion.confirmed, contradicted);
    return contradicted == 0 ? 0 : 1;
}
