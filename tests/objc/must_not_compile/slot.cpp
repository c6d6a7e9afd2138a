// A replacement and its slot have to be of one type.
#include "hook/HookRow.hpp"
#include "platform/Foundation.hpp"

void replacement(NSObject, SEL, BOOL) {}
constinit objc::Saved<void(NSObject, SEL, BOOL)> saved;
constinit objc::Saved<void(NSObject, SEL, NSString)> savedOther;

constexpr auto kGood = hook::row(hook::Group::Dialer, "A", "setFlag:"_sel, hook::Gate::Within7,
                                 hook::Hooked<&replacement, &saved>{});
#ifdef MUST_NOT_COMPILE
constexpr auto kBad = hook::row(hook::Group::Dialer, "A", "setFlag:"_sel, hook::Gate::Within7,
                                hook::Hooked<&replacement, &savedOther>{});
#endif
