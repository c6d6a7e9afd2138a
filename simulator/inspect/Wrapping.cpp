// libffi makes the functions and passes the calls on.
#include "inspect/Wrapping.hpp"

#include <cstdlib>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

#include "inspect/Libraries.hpp"
#include "inspect/Signature.hpp"
#include "inspect/Values.hpp"
#include "objc/Send.hpp"
#include "substrate/RuntimeMethods.hpp"

namespace inspect {
namespace {

constexpr std::size_t kImplied = 2;  // arguments: receiver and selector

struct Wrapped {
    Runner runner;
    std::string name;
    std::unique_ptr<Signature> signature;
    IMP implementation;

    void pass(void *result, void **arguments) const {
        ffi_call(signature->call(), implementation, result, arguments);
    }
};

void describeQuestion(Happening &asked, const Signature &signature, void **arguments) {
    asked.returned = "an exception";  // until something is
    for (std::size_t i = kImplied; i < signature.arguments(); ++i) {
        asked.arguments.push_back(shownArgument(signature.argument(i), arguments[i]));
    }
}

/// The function that libffi calls in place of every wrapped method.
void call(ffi_cif *, void *result, void **arguments, void *data) {
    const auto &method = *static_cast<const Wrapped *>(data);
    Frame frame(method.runner, method.name);
    if (!frame.isRecorded() || method.runner != Runner::Companion) {
        method.pass(result, arguments);
        return;
    }
    describeQuestion(frame.happening(), *method.signature, arguments);
    method.pass(result, arguments);
    frame.happening().returned = shownResult(method.signature->result(), result);
}

/// All that were made, which live as long as the methods that call them.
std::vector<std::unique_ptr<Wrapped>> &allWrapped() {
    static auto *const all = new std::vector<std::unique_ptr<Wrapped>>;
    return *all;
}

IMP closureFor(Wrapped &method) {
    void *code = nullptr;
    auto *const closure = static_cast<ffi_closure *>(ffi_closure_alloc(sizeof(ffi_closure), &code));
    if (closure == nullptr ||
        ffi_prep_closure_loc(closure, method.signature->call(), &call, &method, code) != FFI_OK) {
        return nullptr;
    }
    return reinterpret_cast<IMP>(code);
}

bool isLifecycle(std::string_view selector) {
    return selector == "allocWithZone:" || selector == "dealloc";
}

/// GCC's runtime writes a method that gets another implementation into the table of its class, and
/// classes that nobody has used yet share one: so each is used first.
void wake(Class cls) { objc::send<Class()>(objc::asObject(cls), "class"_sel); }

/// Those of the class itself, or of its metaclass.
void wrapOwnMethods(Class cls, Class named, const void *library, Runner runner) {
    unsigned count = 0;
    const std::unique_ptr<Method[], decltype(&std::free)> methods(class_copyMethodList(cls, &count),
                                                                  &std::free);
    for (const Method method : std::span(methods.get(), count)) {
        const IMP implementation = method_getImplementation(method);
        const SEL selector = method_getName(method);
        if (libraryOf(reinterpret_cast<const void *>(implementation)) == library &&
            !isLifecycle(sel_getName(selector))) {
            wake(named);
            method_setImplementation(
                method,
                wrapped(runner, cls, selector, method_getTypeEncoding(method), implementation));
        }
    }
}

}  // namespace

std::string methodName(Class cls, SEL selector) {
    return std::string(class_isMetaClass(cls) != 0 ? "+[" : "-[") + class_getName(cls) + ' ' +
           sel_getName(selector) + ']';
}

IMP wrapped(Runner runner, Class cls, SEL selector, const char *types, IMP implementation) {
    auto signature = Signature::read(types != nullptr ? types : "");
    if (!signature) {
        return implementation;
    }
    auto &method = *allWrapped().emplace_back(std::make_unique<Wrapped>(
        runner, methodName(cls, selector), std::move(signature), implementation));
    const IMP closure = closureFor(method);
    return closure != nullptr ? closure : implementation;
}

void wrapMethodsOf(const void *library, Runner runner) {
    if (library == nullptr) {
        return;
    }
    std::vector<Class> classes(static_cast<std::size_t>(objc_getClassList(nullptr, 0)));
    objc_getClassList(classes.data(), static_cast<int>(classes.size()));
    for (const Class cls : classes) {
        wrapOwnMethods(cls, cls, library, runner);
        wrapOwnMethods(object_getClass(objc::asObject(cls)), cls, library, runner);
    }
}

}  // namespace inspect
