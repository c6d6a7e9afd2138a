#include "members/Comparison.hpp"

#include <cstdio>

#include "members/Ledger.hpp"
#include "objc/Runtime.hpp"

namespace members {
namespace {

// Names of the ledger are whole literals, and so end with a zero.

Class classNamed(std::string_view name) {
    return reinterpret_cast<Class>(objc_getClass(name.data()));
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
        if (!cls) {
            contradict("class %s: there is none", known.name.data());
        } else if (!known.superclass.empty() && !derivesFrom(cls, known.superclass)) {
            contradict("class %s: does not derive from %s", known.name.data(),
                       known.superclass.data());
        } else {
            ++verdicts_.confirmed;
        }
    }

    void look(const Member &member) {
        const Class cls = classNamed(member.className);
        if (cls && member.isVariable()) {
            lookAtVariable(member, class_getInstanceVariable(cls, member.name.data()));
        } else if (cls) {
            lookAtMethod(member,
                         member.isOfClass() ? object_getClass(reinterpret_cast<id>(cls)) : cls);
        }
    }

    void lookAtVariable(const Member &member, Ivar variable) {
        const char *const encoding = variable ? ivar_getTypeEncoding(variable) : nullptr;
        if (!encoding) {
            contradict("%s %s: there is no such variable", member.className.data(),
                       member.name.data());
        } else if (!isVariableOf(encoding, member.types, kThisAbi)) {
            contradict("%s %s: is '%s', expected %s", member.className.data(), member.name.data(),
                       encoding, member.types.data());
        } else {
            ++verdicts_.confirmed;
        }
    }

    void lookAtMethod(const Member &member, Class cls) {
        const SEL selector = sel_registerName(member.selector().data());
        const Method method = class_getInstanceMethod(cls, selector);
        const char *const encoding = method ? method_getTypeEncoding(method) : nullptr;
        if (!encoding) {
            contradict("%c[%s %s]: there is no such method", member.name.front(),
                       member.className.data(), member.selector().data());
        } else if (!isMethodOf(encoding, member.types, kThisAbi)) {
            contradict("%c[%s %s]: is '%s', expected %s", member.name.front(),
                       member.className.data(), member.selector().data(), encoding,
                       member.types.data());
        } else if (member.has == Has::InheritedOnly &&
                   method != class_getInstanceMethod(class_getSuperclass(cls), selector)) {
            contradict("%c[%s %s]: is the class's own, expected an inherited one",
                       member.name.front(), member.className.data(), member.selector().data());
        } else {
            ++verdicts_.confirmed;
        }
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
