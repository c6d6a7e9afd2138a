// The functions that cannot be handed through: where methods change hands, their implementations
// are given thunks; what differs by processor stands in arm64/ and armv7/.
extern "C" {
#include <objc/message.h>
#include <objc/runtime.h>
}
#include <atomic>
#include <map>

#include <dlfcn.h>

#include "Imports.hpp"
#include "MachO.hpp"
#include "Thunks.hpp"

namespace loader {
namespace {

IMP inwardMethod(IMP method, const char *types) {
    return reinterpret_cast<IMP>(inward(reinterpret_cast<void *>(method), types));
}

IMP outwardMethod(IMP method, const char *types) {
    return reinterpret_cast<IMP>(outward(reinterpret_cast<void *>(method), types));
}

const char *typesOf(Class cls, SEL selector, IMP implementation = nullptr) {
    const Method method = cls && selector ? class_getInstanceMethod(cls, selector) : nullptr;
    const bool isIt =
        method && (!implementation || method_getImplementation(method) == implementation);
    return isIt ? method_getTypeEncoding(method) : nullptr;
}

BOOL addMethod(Class cls, SEL selector, IMP method, const char *types) {
    return class_addMethod(cls, selector, inwardMethod(method, types), types);
}

IMP methodImplementation(Class cls, SEL selector) {
    const IMP method = class_getMethodImplementation(cls, selector);
    return outwardMethod(method, typesOf(cls, selector, method));
}

/// An inline function of this runtime's headers.
Class classOf(id object) { return object_getClass(object); }

void hookMessage(Class cls, SEL selector, IMP replacement, IMP *saved) {
    using Hook = void (*)(Class, SEL, IMP, IMP *);
    static const auto hook =
        reinterpret_cast<Hook>(dlsym(dlopen("libsubstrate.so", RTLD_NOW), "MSHookMessageEx"));
    const char *const types = typesOf(cls, selector);
    hook(cls, selector, inwardMethod(replacement, types), saved);
    if (saved) {
        *saved = outwardMethod(*saved, types);
    }
}

/// A type's encoding as Apple's runtime for this processor has it: BOOL is no unsigned character.
const char *asApples(const char *encoding) {
    static std::map<std::string, std::string> known;
    if (!encoding) {
        return nullptr;
    }
    auto [found, isNew] = known.try_emplace(encoding, encoding);
    int depth = 0;  // in a struct's braces
    for (char &letter : found->second) {
        depth += letter == '{' ? 1 : letter == '}' ? -1 : 0;
        if (letter == 'C' && depth == 0) {
            letter = macho::kIs64 ? 'B' : 'c';
        }
    }
    return found->second.c_str();
}

const char *methodEncoding(Method method) { return asApples(method_getTypeEncoding(method)); }
const char *variableEncoding(Ivar variable) { return asApples(ivar_getTypeEncoding(variable)); }

/// What methods are called by, kept for ever. No lock: every message comes here, and the armv7
/// system's locks take a way through its kernel.
struct Target {
    IMP method;
    void *code;
    const Target *next;
};
std::atomic<const Target *> g_targets[1024];

template <typename Function>
auto code(Function *function) {
    return reinterpret_cast<void (*)()>(function);
}

}  // namespace

extern "C" {
void loaderSend();
void loaderPrint();
void loaderLog();
void loaderBinder();
#ifdef __arm__
void loaderSendStruct();
void loaderEnterTry(void *);
void loaderLeaveTry(void *);
void loaderResume();
void loaderPersonality();
#endif

/// The method that a message reaches, as the image is to call it.
void *loaderLookUp(id receiver, SEL selector) {
    const IMP method = objc_msg_lookup(receiver, selector);
    auto &first = g_targets[reinterpret_cast<uintptr_t>(method) / 4 % std::size(g_targets)];
    const Target *const known = first.load();
    for (const Target *each = known; each; each = each->next) {
        if (each->method == method) {
            return each->code;
        }
    }
    const char *const types = typesOf(object_getClass(receiver), selector, method);
    auto *const made = new Target{method, outward(reinterpret_cast<void *>(method), types), known};
    while (!first.compare_exchange_weak(made->next, made)) {
    }
    return made->code;
}
}

const Substitute *substituteFor(const std::string &symbol) {
    static const std::map<std::string, Substitute> kSubstitutes = {
        {"_objc_msgSend", {loaderSend, nullptr}},
        {"_snprintf", {loaderPrint, nullptr}},
        {"_NSLog", {loaderLog, nullptr}},
        {"dyld_stub_binder", {loaderBinder, nullptr}},
        {"_object_getClass", {code(classOf), "#"}},
        {"_class_addMethod", {code(addMethod), "C"}},
        {"_class_getMethodImplementation", {code(methodImplementation), "?"}},
        {"_MSHookMessageEx", {code(hookMessage), "v"}},
        {"_method_getTypeEncoding", {code(methodEncoding), "*"}},
        {"_ivar_getTypeEncoding", {code(variableEncoding), "*"}},
#ifdef __arm__
        {"_objc_msgSend_stret", {loaderSendStruct, nullptr}},
        {"__Unwind_SjLj_Register", {code(loaderEnterTry), "v"}},
        {"__Unwind_SjLj_Unregister", {code(loaderLeaveTry), "v"}},
        {"__Unwind_SjLj_Resume", {loaderResume, nullptr}},
        {"___gxx_personality_sj0", {loaderPersonality, nullptr}},
#endif
    };
    const auto found = kSubstitutes.find(symbol);
    return found == kSubstitutes.end() ? nullptr : &found->second;
}

}  // namespace loader
