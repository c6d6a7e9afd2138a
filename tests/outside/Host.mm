// A Phone application of somebody else's that loads the add-on: host LIBRARY IDENTIFIER
// on|bare|off [GROUP]. It prints what is not as it should be, and exits with 1 if anything was. Or it
// runs a command among its classes: host COMMAND IDENTIFIER command [ARGUMENT].
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include <dlfcn.h>
#include <objc/runtime.h>
#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include "Checks.h"

static unsigned g_run;
static NSString *g_identifier;
static const char *g_library;
static void *g_addOn;
static int g_faults;
/// Kept where the process that made this one reads it, should this one die.
static char *g_case;
static constexpr size_t kLongestCase = 1000;

Group *Group::g_first;

bool isRun(unsigned runs) { return (g_run & runs) != 0; }

void setIdentifier(NSString *identifier) { g_identifier = [identifier copy]; }

static NSString *bundleIdentifier(id, SEL) { return g_identifier; }

static void setCase(const std::string &name) { g_case[name.copy(g_case, kLongestCase - 1)] = '\0'; }

Case::Case(NSString *name) : outer_(g_case) { setCase(outer_ + ": " + printed(name)); }

Case::~Case() { setCase(outer_); }

void judge(bool holds, const std::string &expected, const std::string &actual, Place place) {
    if (!holds) {
        const char *slash = std::strrchr(place.file_name(), '/');
        std::printf("%s:%u: %s: expected %s, got %s\n", slash ? slash + 1 : place.file_name(),
                    static_cast<unsigned>(place.line()), g_case, expected.c_str(), actual.c_str());
        ++g_faults;
    }
}

Group::Group(const char *name, unsigned runs, void (*check)(), void (*prepare)())
    : name_(name), runs_(runs), check_(check), prepare_(prepare), next_(g_first) {
    g_first = this;
}

int Group::run(void (*load)()) const {
    constexpr int kMost = 100;  // which an exit code can hold
    setCase(name_);
    std::fflush(stdout);
    const pid_t child = fork();
    if (child == 0) {
        // What calls itself for ever ends soon.
        const rlimit stack = {1 << 20, RLIM_INFINITY};
        setrlimit(RLIMIT_STACK, &stack);
        alarm(60);
        inPool([this, load] {
            if (prepare_) {
                prepare_();
            }
            load();
            check_();
        });
        std::exit(std::min(g_faults, kMost));
    }
    int status = 0;
    waitpid(child, &status, 0);
    if (WIFSIGNALED(status)) {
        std::printf("%s: ended by signal %d\n", g_case, WTERMSIG(status));
        return 1;
    }
    return WEXITSTATUS(status);
}

int Group::runAll(void (*load)(), const char *name) {
    int faults = 0;
    for (const Group *group = g_first; group; group = group->next_) {
        if (isRun(group->runs_) && std::strncmp(group->name_, name, std::strlen(name)) == 0) {
            faults += group->run(load);
        }
    }
    return faults;
}

void *exported(const std::string &name) { return dlsym(g_addOn, name.c_str()); }

static void loadAddOn() {
    g_addOn = dlopen(g_library, RTLD_NOW);
    if (!g_addOn) {
        std::printf("%s\n", dlerror());
        std::exit(1);
    }
}

static void setOffset(UIScrollView *self, SEL selector, CGPoint offset) {
    Method inherited = class_getInstanceMethod(objc_getClass("UIScrollView"), selector);
    ((void (*)(id, SEL, CGPoint))method_getImplementation(inherited))(self, selector, offset);
}

// The class of a cell's scroll view, which a bare system lacks.
static void addScrollViewOfCells() {
    Class parent = (Class)objc_getClass("UIScrollView");
    Class cls = objc_allocateClassPair(parent, "UITableViewCellScrollView", 0);
    SEL selector = @selector(setContentOffset:);
    Method inherited = class_getInstanceMethod(parent, selector);
    class_addMethod(cls, selector, (IMP)setOffset, method_getTypeEncoding(inherited));
    objc_registerClassPair(cls);
}

static int runCommand(int argc, char **argv) {
    void *command = dlopen(g_library, RTLD_NOW);
    void *start = command ? dlsym(command, "main") : nullptr;
    if (!start) {
        std::printf("%s\n", dlerror());
        return 1;
    }
    return ((int (*)(int, char **))start)(argc, argv);
}

int main(int argc, char **argv) {
    if (argc < 4) {
        std::fprintf(stderr, "usage: host LIBRARY IDENTIFIER on|bare|off [GROUP]\n");
        return 2;
    }
    NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
    std::setvbuf(stdout, nullptr, _IOLBF, BUFSIZ);
    const double version = std::atof(std::getenv("OUTSIDE_SYSTEM_VERSION"));
    g_library = argv[1];
    g_run = std::strcmp(argv[3], "off") == 0    ? kElsewhere
            : std::strcmp(argv[3], "bare") == 0 ? kBare
            : version >= 8                      ? k80
            : version >= 7.1                    ? k71
                                                : k70;
    g_case = static_cast<char *>(
        mmap(nullptr, kLongestCase, PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0));
    runOn({version});
    setIdentifier([NSString stringWithUTF8String:argv[2]]);
    method_setImplementation(class_getInstanceMethod([NSBundle class], @selector(bundleIdentifier)),
                             (IMP)bundleIdentifier);
    if (!isRun(kBare)) {
        addScrollViewOfCells();
    }
    if (std::strcmp(argv[3], "command") == 0) {
        return runCommand(argc - 3, argv + 3);
    }
    const int faults = Group::runAll(loadAddOn, argc > 4 ? argv[4] : "");
    std::printf("%d faults\n", faults);
    [pool drain];
    return faults == 0 ? 0 : 1;
}
