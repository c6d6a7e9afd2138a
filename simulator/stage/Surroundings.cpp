// Preparing the process, in the order in which things depend on each other.
#include "stage/Surroundings.hpp"

#include <algorithm>
#include <cstdlib>
#include <ranges>

#include <unistd.h>

#include "companion/Companion.hpp"
#include "phone/Classes.hpp"
#include "phone/Resources.hpp"
#include "phone/dialer/ContactBook.hpp"
#include "stage/DelayedMessages.hpp"
#include "stage/Errors.hpp"
#include "stage/Interruption.hpp"
#include "stage/MainBundle.hpp"
#include "stage/ProgressBar.hpp"
#include "stage/Session.hpp"
#include "stage/SystemLog.hpp"
#include "substrate/HookLog.hpp"
#include "substrate/Loader.hpp"
#include "uikit/Device.hpp"
#include "uikit/SimImage.hpp"
#include "uikit/drawing/FixedAdvanceMeasurer.hpp"

namespace stage {
namespace {

namespace fs = std::filesystem;

/// Foundation keeps defaults in the user's home as soon as anybody asks for one; the simulator's
/// belong to its own data.
void prepareDataFolder(const fs::path &folder) {
    const fs::path home = folder / "home";
    std::error_code error;
    fs::create_directories(home / "GNUstep" / "Defaults", error);
    if (error) {
        throw Failure(folder.string() + ": cannot be made a data folder: " + error.message() +
                      "; name another with --data");
    }
    // Fonts that a user has installed at home are still looked for there.
    if (const char *const usersHome = getenv("HOME")) {
        setenv("XDG_DATA_HOME", (fs::path(usersHome) / ".local" / "share").c_str(), 0);
        setenv("XDG_CONFIG_HOME", (fs::path(usersHome) / ".config").c_str(), 0);
    }
    setenv("HOME", home.c_str(), 1);
    setenv("GNUSTEP_USER_ROOT", (home / "GNUstep").c_str(), 1);
}

fs::path pictureFile(const std::string &name) {
    return name.empty() ? fs::path() : companion::pictureFile(name);
}

/// Those of the sample world are there.
void warnOfPictures(const Settings &settings) {
    if (!settings.warn || settings.world.empty()) {
        return;
    }
    constexpr size_t kShown = 10;
    const std::vector<std::string> lines = companion::missingPictures();
    std::ranges::for_each(lines | std::views::take(kShown), settings.warn);
    if (lines.size() > kShown) {
        settings.warn(settings.world.string() + ": " + std::to_string(lines.size() - kShown) +
                      " more pictures are not there");
    }
}

phone::ContactBook &contactsAtStart() {
    static phone::ContactBook contacts;
    return contacts;
}

void fillContactBook() {
    phone::ContactBook::shared().clear();
    for (const companion::Contact &known : companion::store().contacts()) {
        phone::Contact contact{known.name,
                               {},
                               known.recordId,
                               pictureFile(known.avatar),
                               pictureFile(known.wallpaper)};
        for (const companion::ContactNumber &entry : known.numbers) {
            contact.numbers.push_back({entry.number, entry.label});
        }
        phone::ContactBook::shared().add(std::move(contact));
    }
}

/// A bar shows how far a world of the user's is.
size_t openWorld(const Settings &settings) {
    constexpr uintmax_t kTotal = 100;
    ProgressBar bar("reading " + settings.world.filename().string(),
                    settings.world.empty() || !settings.withProgress ? 0 : kTotal);
    const auto progress = [&bar](double part) {
        Interruption::check();
        bar.show(static_cast<uintmax_t>(part * kTotal));
    };
    const size_t entries = companion::open({settings.world, settings.data, {}, progress});
    fillContactBook();
    contactsAtStart() = phone::ContactBook::shared();
    return entries;
}

void loadAddOn() {
    const fs::path folder = phone::installFolder() / "lib";
    if (!fs::exists(folder / "libZQDial.so")) {
        throw Failure((folder / "libZQDial.so").string() +
                      ": the add-on is not there; build it, or pass --without-addon");
    }
    substrate::loadAddOns(folder);
}

}  // namespace

void reopenWorld() {
    companion::startOver();
    phone::ContactBook::shared() = contactsAtStart();
}

void announceNewData() {
    objc::send<void(NSString, NSDictionary)>("ZQIPCService"_cls, "postMsg:withInfo:"_sel,
                                             "msgSystemProcessReloadAllNum"_ns, NSDictionary());
}

void learn(std::string_view piece) {
    companion::learn(piece);
    fillContactBook();
    announceNewData();
}

void prepareProcess(const Settings &settings) {
    prepareDataFolder(settings.data);
    if (!settings.verbose) {
        sendLogTo(settings.data / "system.log");
    }
    sim::Device::setCurrent({std::string(settings.model.ios), settings.model.screenSize(), 2});
    if (sim::Device::current().isAtLeast(8, 0)) {
        phone::defineClassesOfIos8();
    }
    if (!settings.withoutClass.empty() && !phone::forgetClass(settings.withoutClass.c_str())) {
        throw Failure("--without-class: the Phone application has no class " +
                      settings.withoutClass);
    }
    if (settings.fixedMeasurer) {
        sim::TextMeasurer::setCurrent(std::make_unique<sim::FixedAdvanceMeasurer>());
    }
    SimImage::setNamedFolder(phone::pictureFolder().string());
    substrate::setVerbose(settings.verbose);
    setMainBundleIdentifier(settings.bundleIdentifier);
    auto &time = companion::SimulatedTime::shared();
    time.setPace(settings.pace);
    time.letPass({});
    DelayedMessages::shared().forgetAll();
    const size_t entries = openWorld(settings);
    tellIfLong(settings.warn, settings.world, entries);
    warnOfPictures(settings);
    if (settings.withAddOn) {
        loadAddOn();
    }
}

}  // namespace stage
