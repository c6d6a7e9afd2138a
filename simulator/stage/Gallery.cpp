// Drawing the gallery: one child process for each device, as many at a time as there are
// processors, pictures first into a folder of their own, so that a gallery is complete or not
// there.
#include "stage/Gallery.hpp"

#include <algorithm>
#include <iterator>
#include <span>
#include <sstream>
#include <thread>
#include <vector>

#include "stage/ChildProcess.hpp"
#include "stage/Errors.hpp"
#include "stage/GalleryPage.hpp"
#include "stage/OwnFolder.hpp"
#include "stage/ProgressBar.hpp"
#include "stage/Surroundings.hpp"
#include "uikit/drawing/Canvas.hpp"

namespace stage {
namespace {

namespace fs = std::filesystem;

constexpr auto kPictures = "pictures";
constexpr auto kDistinct = "distinct";  // pictures by their fingerprints
constexpr double kPace = 0.01;          // nobody watches
constexpr char kDrawn = '+';            // before what a scene's screen said
constexpr char kLeftOut = '-';          // the scene needs more than there is

std::vector<Model> allModels() {
    std::vector<Model> models;
    for (const std::string_view ios : kSystemVersions) {
        for (const std::string_view screen : kScreens) {
            models.push_back({ios, screen});
        }
    }
    return models;
}

std::string pictureName(const Scene &scene, const Settings &settings) {
    return std::string(kPictures) + "/" + scene.name + "-" + settings.model.slug() +
           (settings.withAddOn ? "-with.png" : "-without.png");
}

bool isShown(const Scene &scene, const Model &model) {
    return std::ranges::find(scene.systems, model.ios) != scene.systems.end();
}

/// Many scenes look the same on two devices, or with and without the add-on: such pictures share
/// one file, as far as the disk allows that. Returns the picture's fingerprint.
std::string keep(const sim::Canvas &picture, const fs::path &folder, const std::string &name) {
    std::string print = std::to_string(picture.fingerprint());
    const fs::path known = folder / kDistinct / print;
    std::error_code none;
    fs::create_hard_link(known, folder / name, none);
    if (none) {
        picture.savePng(folder / name);
        fs::create_hard_link(folder / name, known, none);
    }
    return print;
}

/// Draws one scene; returns, on one line, the picture's fingerprint and what the screen said.
std::string drawScene(Session &session, const Scene &scene, const Settings &settings,
                      const fs::path &folder) {
    std::ostringstream printed;  // by steps; nobody reads it
    session.startOver();
    session.open(scene.request.opening);
    for (const Step &step : scene.request.steps) {
        if (settings.withAddOn || !step.is("hold")) {
            session.perform(step, printed);  // the buttons are the add-on's
        }
    }
    const std::string print = keep(session.picture(), folder, pictureName(scene, settings));
    std::string said = print + ' ' + session.lineText();
    std::ranges::replace(said, '\n', ' ');
    return said;
}

using Say = std::function<void(const std::string &)>;

/// Draws all scenes on one device; says a line a scene, how it looked or that it is left out.
void drawScenes(const fs::path &folder, const SceneGroups &groups, const Settings &settings,
                const Say &say) {
    Session session(settings);
    for (const SceneGroup &group : groups) {
        for (const Scene &scene : group.scenes) {
            if (!isShown(scene, settings.model)) {
                continue;
            }
            try {
                say(kDrawn + drawScene(session, scene, settings, folder) + '\n');
            } catch (const Failure &) {
                if (isSample(settings)) {
                    throw;
                }
                say(kLeftOut + std::string("\n"));
            }
        }
    }
}

void sayWhatNoFontHas(const Say &say) {
    for (const char32_t character : sim::Canvas::charactersWithoutGlyph()) {
        say(std::to_string(static_cast<uint32_t>(character)) + ' ');
    }
}

Settings sideOf(const Settings &settings, const Model &model, bool withAddOn) {
    Settings side = settings;
    side.model = model;
    side.withAddOn = withAddOn;
    side.pace = kPace;
    side.withProgress = false;  // the gallery has a bar of its own
    return side;
}

/// Returns whether the scene was drawn.
bool takeLook(std::istream &lines, Look &look) {
    const bool drawn = lines.get() == kDrawn;
    std::getline(lines, look.print, drawn ? ' ' : '\n');
    if (drawn) {
        std::getline(lines, look.says);
    }
    return drawn;
}

size_t shownScenes(const SceneGroups &groups, const Model &model) {
    size_t count = 0;
    for (const SceneGroup &group : groups) {
        count += static_cast<size_t>(std::ranges::count_if(
            group.scenes, [&](const Scene &scene) { return isShown(scene, model); }));
    }
    return count;
}

/// The scenes that not every device which could show them does.
std::vector<std::string> missingIn(std::span<const Exhibit> exhibits,
                                   std::span<const SceneGroup> groups,
                                   std::span<const Model> models) {
    std::vector<std::string> names;
    for (const SceneGroup &group : groups) {
        for (const Scene &scene : group.scenes) {
            const auto wanted = std::ranges::count_if(
                models, [&](const Model &model) { return isShown(scene, model); });
            if (std::ranges::count(exhibits, scene.name, &Exhibit::scene) < wanted) {
                names.push_back(scene.name);
            }
        }
    }
    return names;
}

/// What a device shows in all scenes that both sides drew: their lines come in the order of the
/// scenes, those without the add-on first.
std::vector<Exhibit> exhibitsOf(const SceneGroups &groups, const Settings &without,
                                const Settings &with, std::istream &lines) {
    std::vector<Exhibit> exhibits;
    for (const SceneGroup &group : groups) {
        for (const Scene &scene : group.scenes) {
            if (isShown(scene, with.model)) {
                exhibits.push_back({with.model,
                                    scene.name,
                                    {pictureName(scene, without)},
                                    {pictureName(scene, with)}});
            }
        }
    }
    for (const auto look : {&Exhibit::without, &Exhibit::with}) {
        for (Exhibit &exhibit : exhibits) {
            if (!takeLook(lines, exhibit.*look)) {
                exhibit.scene.clear();
            }
        }
    }
    std::erase_if(exhibits, [](const Exhibit &exhibit) { return exhibit.scene.empty(); });
    return exhibits;
}

/// Puts the finished files in their place, the page last.
void moveInto(const fs::path &folder, const fs::path &staged, std::span<const Exhibit> exhibits) {
    try {
        fs::create_directories(folder / kPictures);
        for (const Exhibit &exhibit : exhibits) {
            for (const Look *look : {&exhibit.without, &exhibit.with}) {
                fs::rename(staged / look->picture, folder / look->picture);
            }
        }
        for (const std::string_view file : kPageFiles) {
            fs::rename(staged / file, folder / file);
        }
    } catch (const fs::filesystem_error &error) {
        throw Failure(folder.string() + ": cannot be filled: " + error.code().message() +
                      "; choose another folder with --out");
    }
}

}  // namespace

Gallery makeGallery(const fs::path &folder, const Settings &settings, const SceneGroups &groups) {
    if (fs::exists(folder) && !fs::is_directory(folder)) {
        throw Failure(folder.string() + ": is no folder; choose another with --out");
    }
    const OwnFolder data = ownData(settings.data);
    const OwnFolder staging = OwnFolder::passing(folder, "choose another folder with --out");
    for (const char *const part : {kPictures, kDistinct}) {
        fs::create_directory(staging.path() / part);
    }
    const std::vector<Model> models = allModels();
    std::vector<ChildProcess::Work> works;
    uintmax_t total = 0;
    for (const Model &model : models) {
        total += 2 * shownScenes(groups, model);
        works.emplace_back([&](const Say &say) {
            for (const bool withAddOn : {false, true}) {
                Settings side = sideOf(settings, model, withAddOn);
                side.data = data.path() / model.slug();  // they cannot share a store
                if (&model != models.data() || !withAddOn) {
                    side.warn = {};  // one warns for all
                }
                drawScenes(staging.path(), groups, side, say);
            }
            sayWhatNoFontHas(say);
        });
    }
    ProgressBar progress("drawing", total);
    progress.show(0);
    uintmax_t drawn = 0;
    const std::vector<std::string> said = runEach(
        works, std::max(1U, std::thread::hardware_concurrency()), [&](const std::string &lines) {
            drawn += static_cast<uintmax_t>(std::ranges::count(lines, '\n'));
            progress.show(drawn);
        });
    std::vector<Exhibit> exhibits;
    for (size_t i = 0; i < models.size(); ++i) {
        std::istringstream lines(said[i]);
        std::ranges::move(exhibitsOf(groups, sideOf(settings, models[i], false),
                                     sideOf(settings, models[i], true), lines),
                          std::back_inserter(exhibits));
        sim::Canvas::charactersWithoutGlyph().insert(std::istream_iterator<uint32_t>(lines), {});
    }
    writeGalleryPage(staging.path(), galleryData(groups, models, exhibits, settings));
    moveInto(folder, staging.path(), exhibits);
    return {2 * exhibits.size(), missingIn(exhibits, groups, models)};
}

}  // namespace stage
