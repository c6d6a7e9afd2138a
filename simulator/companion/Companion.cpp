// The state of the one run that a process has.
#include "companion/Companion.hpp"

#include <algorithm>
#include <fstream>
#include <memory>
#include <ranges>
#include <system_error>
#include <utility>

#include <dlfcn.h>

#include "companion/numbers/Numbers.hpp"
#include "uikit/drawing/Picture.hpp"

namespace companion {

namespace {

/// build/share, found from where this library lies (build/lib).
std::filesystem::path shareDir() {
    Dl_info info{};
    if (dladdr(reinterpret_cast<const void *>(&shareDir), &info) == 0 ||
        info.dli_fname == nullptr) {
        return "share";
    }
    const auto library = std::filesystem::absolute(info.dli_fname);
    return (library.parent_path().parent_path() / "share").lexically_normal();
}

constexpr std::string_view kLogoPrefix = "partner_";

std::filesystem::path logoFolder(const std::filesystem::path &dataDir) { return dataDir / "logos"; }

/// A run begins without the logos that an earlier one downloaded.
void forgetLogos(const std::filesystem::path &dataDir) {
    namespace fs = std::filesystem;
    const fs::path folder = logoFolder(dataDir);
    if (!fs::is_directory(folder)) {
        return;
    }
    try {
        for (const fs::directory_entry &entry : fs::directory_iterator(folder)) {
            if (entry.path().filename().string().starts_with(kLogoPrefix)) {
                fs::remove(entry.path());
            }
        }
    } catch (const fs::filesystem_error &error) {
        throw StoreError(folder.string() + ": cannot be emptied (" + error.code().message() +
                         "); choose a data folder that you may write to");
    }
}

/// Also a picture at double scale alone is one. A picture is known by how its file begins.
bool isPicture(const std::filesystem::path &file) {
    constexpr std::string_view kSignature = "\x89PNG\r\n\x1A\n";
    const auto paths = {sim::Picture::doubleScale(file), file};
    return std::ranges::any_of(paths, [&](const std::filesystem::path &path) {
        std::string start(kSignature.size(), '\0');
        std::ifstream(path, std::ios::binary).read(start.data(), std::ssize(start));
        return start == kSignature;
    });
}

struct Run {
    std::unique_ptr<Store> store = std::make_unique<Store>();
    std::filesystem::path dataDir{};
    std::filesystem::path resourceDir = shareDir() / "companion";
    std::filesystem::path worldFile{};
    std::vector<PictureUse> pictures{};  // that the world names
    Journal journal{};
};

Run &currentRun() {
    static Run run;
    return run;
}

}  // namespace

std::size_t open(const Settings &settings) {
    constexpr double kRead = 0.6;  // writing to the disk is quicker than reading
    const World world =
        World::read(settings.worldFile.empty() ? sampleWorldFile() : settings.worldFile,
                    within(settings.progress, 0, kRead));
    const Progress storing = within(settings.progress, kRead, 1);
    try {
        currentRun().store->keep();  // the new one may lie in the same folder
    } catch (const StoreError &) {   // or the old one's is gone, and nobody asks for it again
    }
    std::unique_ptr<Store> opened;
    if (settings.dataDir.empty()) {
        opened = std::make_unique<Store>();
        opened->load(world, storing);
    } else {
        opened = std::make_unique<Store>(settings.dataDir, world, storing);
        forgetLogos(settings.dataDir);
    }
    // Absolute, since the paths are handed out and the process may change its folder.
    const auto absolute = [](const std::filesystem::path &path) {
        return path.empty() ? path : std::filesystem::absolute(path);
    };
    Run &run = currentRun();
    run.store = std::move(opened);
    run.dataDir = absolute(settings.dataDir);
    run.resourceDir =
        settings.resourceDir.empty() ? shareDir() / "companion" : absolute(settings.resourceDir);
    run.worldFile = absolute(settings.worldFile);
    run.pictures = world.pictures;
    run.journal = {};
    return world.entries();
}

void learn(std::string_view json) {
    const World piece = World::readPiece(json, store().frame());
    for (const std::int32_t partner : store().learn(piece)) {
        const std::filesystem::path logo = logoFile(partner);
        std::error_code none;  // it was not there
        std::filesystem::remove(logo, none);
        std::filesystem::remove(sim::Picture::doubleScale(logo), none);
    }
}

void startOver() {
    Run &run = currentRun();
    run.store->startOver();
    forgetLogos(run.dataDir);
    run.journal = {};
}

Store &store() { return *currentRun().store; }

std::string regionOf(std::string_view text) {
    const auto told = store().region(pureNumber(text));
    return told ? *told : areaName(text);
}

Journal &journal() { return currentRun().journal; }

namespace {

Listener g_listener = nullptr;

}  // namespace

void setListener(Listener listener) { g_listener = listener; }

void tell(Told told, const std::string &what) {
    note(told == Told::Message ? journal().messages : journal().openedUrls, what);
    if (g_listener != nullptr) {
        g_listener(told, what);
    }
}

int &awaited() {
    static int count = 0;  // not of the run: what was asked for in one may come in the next
    return count;
}

const std::filesystem::path &resourceDir() { return currentRun().resourceDir; }

std::filesystem::path pictureFile(const std::string &name) {
    const Run &run = currentRun();
    const std::filesystem::path own = run.worldFile.parent_path() / name;
    return !run.worldFile.empty() && isPicture(own) ? own : run.resourceDir / name;
}

std::vector<std::string> missingPictures() {
    const Run &run = currentRun();
    std::vector<std::string> lines;
    for (const PictureUse &use : run.pictures) {
        if (!isPicture(pictureFile(use.name))) {
            lines.push_back(run.worldFile.string() + ": " + use.place + ": no PNG picture " +
                            use.name + " lies beside this file or in " + run.resourceDir.string() +
                            "; none is shown");
        }
    }
    return lines;
}

std::filesystem::path logoFile(std::int32_t partnerId) {
    const std::filesystem::path &dataDir = currentRun().dataDir;
    if (dataDir.empty()) {
        return {};
    }
    return logoFolder(dataDir) / (std::string(kLogoPrefix) + std::to_string(partnerId) + ".png");
}

std::filesystem::path sampleWorldFile() { return shareDir() / "worlds" / "default.json"; }

}  // namespace companion
