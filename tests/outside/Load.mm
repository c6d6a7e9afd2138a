// How the add-on comes into somebody else's process.
#include <algorithm>
#include <csignal>

#include <sys/wait.h>
#include <unistd.h>

#import "Rows.h"
#import "Substrate.h"

static bool isLoaded() { return NSClassFromString(@"ZQDialNumberInputUIHook") != nil; }

// Nobody's class is woken by a library that is being loaded.
static void checkQuiet() { expectEqual(wokenClasses(), ""); }
static const Group g_quiet("load, wakes no class", kPhone | kElsewhere, checkQuiet);

static void checkIn() { expectTrue(isLoaded()); }
// What is not loaded replaces nothing, and so shows nothing.
static void checkOut() {
    expectTrue(!isLoaded());
    expectEqual(hookedMethods().size(), 0);
}
static const Group g_in("load", kPhone | kBare, checkIn);
static const Group g_out("load, elsewhere", kElsewhere, checkOut);
static const Group g_case("load, another letter case", kPhone, checkIn,
                          [] { setIdentifier(@"COM.Apple.MOBILEPHONE"); });
static const Group g_longer("load, a longer identifier", kPhone, checkOut,
                            [] { setIdentifier(@"com.apple.mobilephone.more"); });
static const Group g_none("load, no identifier", kPhone, checkOut, [] { setIdentifier(nil); });
static const Group g_zero("load, an identifier with a zero", kPhone, checkOut, [] {
    const unichar kZero = 0;
    NSString *zero = [NSString stringWithCharacters:&kZero length:1];
    setIdentifier([NSString stringWithFormat:@"com.apple.mobilephone%@more", zero]);
});

static const Group g_raising("load, an identifier that raises", kPhone, checkOut,
                             [] { setIdentifier((NSString *)number(1)); });
static const Group g_preferences("load, preferences that raise", kPhone, checkIn,
                                 [] { troubleAt(@"InitializePreferences", fail); });

// Every replacement is exported by its name, the dialer's without the last underscore; the one that
// must never be installed ends whoever calls it.
static void checkExports() {
    for (const auto &[method, replacement] : hookedMethods()) {
        Case each([NSString stringWithUTF8String:method.c_str()]);
        std::string name = method;
        std::replace(name.begin(), name.end(), ' ', '_');
        std::replace(name.begin(), name.end(), ':', '_');
        void *whole = exported("replace_" + name);
        name.pop_back();
        expectTrue(replacement == (whole ? whole : exported("replace_" + name)));
    }
    auto tagline =
        (void (*)())exported("replace_ABContactHeaderDisplayView__taglineStringForContact_");
    const pid_t child = fork();
    if (child == 0) {
        tagline();
        _exit(0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    const int signal = WIFSIGNALED(status) ? WTERMSIG(status) : 0;
    expectTrue(signal == SIGILL || signal == SIGTRAP);
}
static const Group g_exports("load, exports", kPhone, checkExports);

// Of a companion that cannot make up its mind, each screen takes one answer for all its methods.
static void checkVersions() {
    runOn({isRun(k7) ? 7.0 : 8.0});
    auto times = [](const char *method) { return hookedMethods().count(method); };
    expectEqual(times("PHRecentsCell layoutSubviews"), 1);
    expectEqual(times("PHRecentsViewController viewWillAppear:"),
                1 - times("PhoneViewController viewWillAppear:"));
    expectEqual(times("ABContactHeaderView layoutSubviews"),
                times("PhoneViewController viewWillAppear:"));
    expectTrue(times("TPLCDTextView setCenterText:") <= times("TUTelephonyCall dealloc"));
    PHRecentsCell *row = rowOf(callFrom(kNumber));
    [row layoutSubviews];
    expectEqual(row->layouts, 1);
}
static const Group g_newFirst("load, 8.0 and then 7.0", kPhone, checkVersions,
                              [] { runOn({8.0, 7.0}); });
static const Group g_oldFirst("load, 7.0 and then 8.0", kPhone, checkVersions,
                              [] { runOn({7.0, 8.0}); });

// What is made at the first question may be asked for again meanwhile.
static void checkReentry() {
    const struct {
        NSString *name;
        SEL shared;
    } kShared[] = {{@"ZQSystemCallHistoryViewHook", @selector(currentHook)},
                   {@"ZQDialCloudQueryService", @selector(currentService)}};
    NSUInteger observers = 0;
    for (const auto &each : kShared) {
        Case name(each.name);
        Class cls = NSClassFromString(each.name);
        troubleAt(@"addObserver:sel:forMsg:", [&] { [cls performSelector:each.shared]; });
        id made = [cls performSelector:each.shared];
        expectTrue(made != nil);
        expectEqual([cls performSelector:each.shared], made);
        expectEqual([Stage observersOf:@"msgSystemProcessReloadAllNum"], ++observers);
    }
}
static const Group g_reentry("shared objects, asked for while they are made", kPhone, checkReentry);

static void checkLogo() {
    [Stage reset];
    id hook = [[[NSClassFromString(@"ZQDialWaitUIHook") alloc] init] autorelease];
    for (id info : {(id)pair(@"plogopath", @"/logo.png"), (id)pair(@"plogopath", number(5)),
                    (id) @"no dictionary", (id)nil}) {
        NSNotification *message = [NSNotification notificationWithName:@"msgPartnerLogoDownloaded"
                                                                object:nil
                                                              userInfo:info];
        atEachQuestion([&](const Troubled &troubled) {
            troubled([&] { [hook handlePartnerLogoDownloadNotification:message]; }, fail);
        });
    }
}
static const Group g_logo("a partner's logo, downloaded", kPhone, checkLogo);
