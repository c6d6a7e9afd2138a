// The runtime asked about every entry of the ledger.
#include "Comparison.hpp"

#include <algorithm>
#include <cstdio>

#include "members/Ledger.hpp"
#include "objc/Runtime.hpp"

namespace members {
namespace {

/// A name of the ledger's as the runtime's functions take it, cut where it is too long for any.
struct Name {
    explicit Name(std::string_view name) {
        std::copy_n(name.begin(), std::min(name.size(), sizeof text - 1), text);
    }
    char text[120] = {};
};

Class classNamed(std::string_view name) {
    return reinterpret_cast<Class>(objc_getClass(Name(name).text));
}

bool derivesFrom(Class cls, std::string_view ancestor) {
    while (cls && class_getName(cls) != ancestor) {
        cls = class_getSuperclass(cls);
    }
    return cls != nullptr;
}

class Comparison {
  public:
    Comparison(Report &report, Systems systems) : report_(report), systems_(systems) {}

    Verdicts lookAtAll(const auto &...parts) {
        const auto lookAtPart = [this](const auto &entries) {
            for (const auto &entry : entries) {
                if ((entry.systems & systems_) != 0) {
                    look(entry);
                }
            }
        };
        (lookAtPart(parts), ...);
        return verdicts_;
    }

  private:
    void look(const KnownClass &known) {
        const Class cls = classNamed(known.name);
        const bool derives = known.superclass.empty() || derivesFrom(cls, known.superclass);
        if (cls && derives) {
            ++verdicts_.confirmed;
            return;
        }
        contradict("class %s: %s%s", Name(known.name).text,
                   cls ? "does not derive from " : "there is none",
                   cls ? Name(known.superclass).text : "");
    }

    void look(const Member &member) {
        const Class cls = classNamed(member.className);
        if (cls && member.isVariable()) {
            lookAtVariable(member, class_getInstanceVariable(cls, Name(member.name).text));
        } else if (cls) {
            lookAtMethod(member,
                         member.isOfClass() ? object_getClass(reinterpret_cast<id>(cls)) : cls);
        }
    }

    void lookAtVariable(const Member &member, Ivar variable) {
        const char *const encoding = variable ? ivar_getTypeEncoding(variable) : nullptr;
        judge(member, encoding, encoding && isVariableOf(encoding, member.types, kThisAbi));
    }

    void lookAtMethod(const Member &member, Class cls) {
        const SEL selector = sel_registerName(Name(member.selector()).text);
        const Method method = class_getInstanceMethod(cls, selector);
        const char *const encoding = method ? method_getTypeEncoding(method) : nullptr;
        const bool isOwn =
            method && method != class_getInstanceMethod(class_getSuperclass(cls), selector);
        if (member.has == Has::InheritedOnly && isOwn) {
            contradict("-[%s %s]: is the class's own, expected an inherited one",
                       Name(member.className).text, Name(member.selector()).text);
        } else {
            judge(member, encoding, encoding && isMethodOf(encoding, member.types, kThisAbi));
        }
    }

    /// `encoding` is null where there is no such member.
    void judge(const Member &member, const char *encoding, bool isAsExpected) {
        if (isAsExpected) {
            ++verdicts_.confirmed;
            return;
        }
        char found[256] = "there is none";
        if (encoding) {
            std::snprintf(found, sizeof found, "is '%s', expected %s", encoding,
                          Name(member.types).text);
        }
        const char sign[] = {member.isVariable() ? '\0' : member.name.front(), '\0'};
        contradict(member.isVariable() ? "%s%s %s: %s" : "%s[%s %s]: %s", sign,
                   Name(member.className).text, Name(member.selector()).text, found);
    }

    template <class... Args>
    void contradict(const char *format, Args... args) {
        char line[512];
        std::snprintf(line, sizeof line, format, args...);
        report_.contradiction(line);
        ++verdicts_.contradicted;
    }

    Report &report_;
    Systems systems_;
    Verdicts verdicts_;
};

}  // namespace

Verdicts compareApple(Systems systems, Report &report) {
    return Comparison(report, systems).lookAtAll(kAppleClasses, kAppleMembers);
}

Verdicts compareCompanion(Report &report) {
    return Comparison(report, kEverySystem).lookAtAll(kCompanionClasses, kCompanionMembers);
}

}  // namespace members
