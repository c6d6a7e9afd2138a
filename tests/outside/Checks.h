// What the host checks with: a check that fails is printed with its place and its case, with what
// was expected and what there is, and counted.
#pragma once

#include <source_location>
#include <string>
#include <type_traits>

#import "Companion.h"
#import "UIKit.h"

using Place = std::source_location;

/// The systems that a run pretends; the bare one lacks the class of the cells' scroll views, and
/// elsewhere the process is another application's.
enum Run : unsigned { k70 = 1, k71 = 2, k80 = 4, kBare = 8, kElsewhere = 16 };
constexpr unsigned k7 = k70 | k71, kPhone = k7 | k80;

bool isRun(unsigned runs);
inline bool isNewer() { return isRun(k80); }

/// Checks that some runs make, each group in a process of its own into which the add-on is newly
/// loaded: what it breaks or leaves behind harms no other. `prepare` runs before it is loaded.
class Group {
  public:
    Group(const char *name, unsigned runs, void (*check)(), void (*prepare)() = nullptr);
    /// Runs those of this run whose names begin so, and returns how many faults they found.
    static int runAll(void (*load)(), const char *name);

  private:
    int run(void (*load)()) const;

    static Group *g_first;
    const char *name_;
    unsigned runs_;
    void (*check_)(), (*prepare_)();
    Group *next_;
};

/// What the add-on exports by that name, or null.
void *exported(const std::string &name);

/// The bundle identifier of the process.
void setIdentifier(NSString *identifier);

/// A case whose name is printed with its faults, as long as it lives.
class Case {
  public:
    explicit Case(NSString *name);
    ~Case();
    Case(const Case &) = delete;
    Case &operator=(const Case &) = delete;

  private:
    std::string outer_;
};

inline std::string printed(const std::string &text) { return text; }
std::string printed(id object);
std::string printed(double number);
std::string printed(CGPoint point);
std::string printed(CGRect frame);
std::string printed(UIEdgeInsets insets);

void judge(bool holds, const std::string &expected, const std::string &actual, Place place);

/// Objects are compared by what they are.
template <typename Value>
void expectEqual(const Value &actual, const std::type_identity_t<Value> &expected,
                 Place place = Place::current()) {
    if constexpr (std::is_convertible_v<Value, id>) {
        judge(actual == expected || [actual isEqual:expected], printed(expected), printed(actual),
              place);
    } else {
        judge(actual == expected, printed(expected), printed(actual), place);
    }
}

void expectTrue(bool holds, Place place = Place::current());
/// Of a view that is there.
void expectFrame(UIView *view, CGRect expected, Place place = Place::current());
/// The actual one of several pictures.
void expectOneOf(NSString *actual, std::initializer_list<id> expected,
                 Place place = Place::current());
void expectQuiet(const std::function<void()> &work, Place place = Place::current());

bool raises(const std::function<void()> &work);
/// Does a pass, at one of whose questions the trouble comes up.
using Troubled =
    std::function<void(const std::function<void()> &pass, std::function<void()> trouble)>;
/// Plays a scene, at first without trouble, then once for each question that its pass asks.
void atEachQuestion(const std::function<void(const Troubled &troubled)> &scene,
                    Place place = Place::current());

inline NSArray *list(std::initializer_list<id> objects) {
    return [NSArray arrayWithObjects:objects.begin() count:objects.size()];
}
inline NSNumber *number(int value) { return [NSNumber numberWithInt:value]; }
inline NSDictionary *pair(id key, id value) {
    return [NSDictionary dictionaryWithObject:value forKey:key];
}
inline UIColor *rgb(int red, int green, int blue) {
    return [UIColor colorWithRed:(CGFloat)red / 255
                           green:(CGFloat)green / 255
                            blue:(CGFloat)blue / 255
                           alpha:1];
}

inline bool isShown(UIView *view) { return view && ![view isHidden]; }
inline UILabel *labelWith(NSInteger tag, UIView *view) { return (UILabel *)[view viewWithTag:tag]; }
/// All that is to be seen within a view: tags, frames and texts, and in braces what is within.
NSString *picture(UIView *view);

ZQNumberIdentity *identity(int type, id label, int count = 0, id source = nil, int cloudType = 0);
/// A brand whose name stands under the key's own name; under the companion's key stands another.
ZQNumberIdentity *brandOf(id name);
