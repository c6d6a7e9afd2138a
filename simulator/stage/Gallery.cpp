// Drawing the gallery: one child process for each device and for each side, pictures first into a
// folder of their own, so that a gallery is complete or not there.
#include "stage/Gallery.hpp"

#include <algorithm>
#include <fstream>
#include <sstream>
#include <vector>

#include <unistd.h>

#include "stage/ChildProcess.hpp"
#include "stage/Errors.hpp"
#include "stage/GalleryPage.hpp"

namespace stage {
namespace {

namespace fs = std::filesystem;

constexpr auto kPictures = "pictures";
constexpr auto kPage = "index.html";

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
    return std::string(kPictures) + "/" + std::string(scene.name) + "-" + settings.model.slug() +
           (settings.withAddOn ? "-with.png" : "-without.png");
}

/// Draws all scenes on one device; answers what the screen said, one line a scene.
std::string drawScenes(const fs::path &folder, const Settings &settings) {
    Session session(settings);
    std::ostringstream captions;
    for (const Scene &scene : scenes()) {
        session.openDialer();
        for (const Step &step : scene.steps) {
            session.perform(step, captions);
        }
        session.savePicture(folder / pictureName(scene, settings));
        std::string said = session.lineText();
        std::ranges::replace(said, '\n', ' ');
        captions << said << '\n';
    }
    return captions.str();
}

/// A folder beside `folder` that vanishes with the object, whatever is left in it.
class StagingFolder {
  public:
    explicit StagingFolder(const fs::path &folder) {
        fs::path target = fs::absolute(folder).lexically_normal();
        if (!target.has_filename()) {  // written with a slash at the end
            target = target.parent_path();
        }
        path_ = target.string() + ".unfinished-" + std::to_string(getpid());
        std::error_code error;
        fs::create_directories(path_ / kPictures, error);
        if (error) {
            throw Failure(path_.string() + ": cannot be made: " + error.message() +
                          "; choose another folder with --out");
        }
    }
    StagingFolder(const StagingFolder &) = delete;
    StagingFolder &operator=(const StagingFolder &) = delete;
    ~StagingFolder() {
        std::error_code ignored;
        fs::remove_all(path_, ignored);
    }

    const fs::path &path() const { return path_; }

  private:
    fs::path path_;
};

void writePage(const fs::path &file, const std::string &page) {
    std::ofstream stream(file, std::ios::binary);
    stream << page;
    stream.close();
    if (!stream) {
        throw Failure(file.string() + ": cannot be written; is the disk full?");
    }
}

/// Puts the finished files in their place, the page last.
int moveInto(const fs::path &folder, const fs::path &staged) {
    int pictures = 0;
    try {
        fs::create_directories(folder / kPictures);
        for (const fs::directory_entry &entry : fs::directory_iterator(staged / kPictures)) {
            fs::rename(entry.path(), folder / kPictures / entry.path().filename());
            ++pictures;
        }
        fs::rename(staged / kPage, folder / kPage);
    } catch (const fs::filesystem_error &error) {
        throw Failure(folder.string() + ": cannot be filled: " + error.code().message() +
                      "; choose another folder with --out");
    }
    return pictures;
}

}  // namespace

int makeGallery(const fs::path &folder, const Settings &settings) {
    if (fs::exists(folder) && !fs::is_directory(folder)) {
        throw Failure(folder.string() + ": is no folder; choose another with --out");
    }
    const StagingFolder staging(folder);
    const std::vector<Model> models = allModels();
    std::vector<Exhibit> exhibits;
    for (const Model &model : models) {
        Settings without = settings;
        without.model = model;
        without.withAddOn = false;
        Settings with = without;
        with.withAddOn = true;
        std::istringstream captionsWithout(
            inChildProcess([&] { return drawScenes(staging.path(), without); }));
        std::istringstream captionsWith(
            inChildProcess([&] { return drawScenes(staging.path(), with); }));
        for (const Scene &scene : scenes()) {
            Exhibit exhibit{model,
                            std::string(scene.name),
                            pictureName(scene, without),
                            pictureName(scene, with),
                            {},
                            {}};
            std::getline(captionsWithout, exhibit.captionWithout);
            std::getline(captionsWith, exhibit.captionWith);
            exhibits.push_back(std::move(exhibit));
        }
    }
    writePage(staging.path() / kPage, galleryPage(scenes(), models, exhibits));
    return moveInto(folder, staging.path());
}

}  // namespace stage
