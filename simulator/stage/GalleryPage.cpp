// The data is all that is made here; how it is shown is the page's own matter.
#include "stage/GalleryPage.hpp"

#include <algorithm>
#include <fstream>
#include <memory>
#include <regex>
#include <sstream>

#include <glib.h>
#include <nlohmann/json.hpp>

#include "phone/Resources.hpp"
#include "stage/Commands.hpp"
#include "stage/Errors.hpp"

namespace stage {
namespace {

namespace fs = std::filesystem;
using nlohmann::json;
using Owned = std::unique_ptr<char, decltype(&g_free)>;

std::string shellQuoted(const fs::path &file) {
    return Owned(g_shell_quote(fs::absolute(file).c_str()), g_free).get();
}

std::string inAddress(const std::string &text) {
    return Owned(g_uri_escape_string(text.c_str(), nullptr, TRUE), g_free).get();
}

/// That draws one picture of a scene.
std::string command(const Scene &scene, const Exhibit &exhibit, const Settings &settings,
                    const Look &look) {
    std::smatch parts;
    std::string rest = scene.command;
    if (std::regex_match(scene.command, parts, std::regex(R"(\S+ (\S+)(.*))"))) {
        rest = parts[2];
    }
    std::string line = std::string(kProgram) + " " + parts.str(1) + " --ios " +
                       std::string(exhibit.model.ios) + " --screen " +
                       std::string(exhibit.model.screen);
    if (&look == &exhibit.without) {
        line += " --without-addon";
        rest = std::regex_replace(rest, std::regex(" --hold \\w+"), "");  // of the add-on's buttons
    }
    if (!settings.world.empty()) {
        line += " --world " + shellQuoted(settings.world);
    }
    if (!settings.calls.empty()) {
        line += " --calls " + shellQuoted(settings.calls);
    }
    return line + rest + " --png " + fs::path(look.picture).filename().string();
}

/// Where the phone in the browser shows the scene; none for what it cannot show.
std::optional<std::string> address(const Scene &scene, const Model &model,
                                   const Settings &settings) {
    const Opening &opening = scene.request.opening;
    if (!isSample(settings) || opening.display) {
        return std::nullopt;
    }
    std::string result = "http://127.0.0.1:" + std::to_string(kServedPort) +
                         "/#ios=" + std::string(model.ios) +
                         "&screen=" + std::string(model.screen) + "&show=both";
    if (opening.screen == ScreenKind::Recents) {
        result += "&step=" + inAddress("tab recents");
    }
    for (const Step &step : scene.request.steps) {
        if (!step.is("tree")) {
            result += "&step=" + inAddress(text(step));
        }
    }
    return result;
}

json lookData(const Scene &scene, const Exhibit &exhibit, const Settings &settings,
              const Look &look) {
    return {{"picture", look.picture},
            {"says", look.says},
            {"command", command(scene, exhibit, settings, look)}};
}

json sceneData(const Scene &scene, std::span<const Exhibit> exhibits, const Settings &settings) {
    json shots;
    for (const Exhibit &exhibit : exhibits) {
        if (exhibit.scene == scene.name) {
            json &shot = shots[exhibit.model.slug()];
            shot = {{"without", lookData(scene, exhibit, settings, exhibit.without)},
                    {"with", lookData(scene, exhibit, settings, exhibit.with)},
                    {"isSame", exhibit.without.print == exhibit.with.print}};
            if (const auto live = address(scene, exhibit.model, settings)) {
                shot["address"] = *live;
            }
        }
    }
    return {{"name", scene.name}, {"title", scene.title}, {"note", scene.note}, {"shots", shots}};
}

void writeFile(const fs::path &file, const std::string &content) {
    std::ofstream stream(file, std::ios::binary);
    stream << content;
    stream.close();
    if (!stream) {
        throw Failure(file.string() + ": cannot be written; is the disk full?");
    }
}

}  // namespace

bool isSample(const Settings &settings) { return settings.world.empty() && settings.calls.empty(); }

std::string galleryData(std::span<const SceneGroup> groups, std::span<const Model> models,
                        std::span<const Exhibit> exhibits, const Settings &settings) {
    json data = {
        {"isSample", isSample(settings)}, {"devices", json::array()}, {"groups", json::array()}};
    for (const Model &model : models) {
        data["devices"].push_back({{"name", model.slug()}, {"title", model.title()}});
    }
    for (const SceneGroup &group : groups) {
        json scenes = json::array();
        for (const Scene &scene : group.scenes) {
            if (std::ranges::find(exhibits, scene.name, &Exhibit::scene) != exhibits.end()) {
                scenes.push_back(sceneData(scene, exhibits, settings));
            }
        }
        data["groups"].push_back(
            {{"name", group.name}, {"title", group.title}, {"scenes", std::move(scenes)}});
    }
    return data.dump(-1, ' ', false, json::error_handler_t::replace);
}

void writeGalleryPage(const fs::path &folder, const std::string &data) {
    constexpr std::string_view kPlace = "@DATA@";
    for (const std::string_view name : kPageFiles) {
        const fs::path file = phone::installFolder() / "share" / "gallery" / name;
        std::ostringstream read;
        read << std::ifstream(file, std::ios::binary).rdbuf();
        std::string content = read.str();
        if (content.empty()) {
            throw Failure(file.string() + ": cannot be read; build the simulator anew");
        }
        if (const size_t place = content.find(kPlace); place != std::string::npos) {
            // A "<" would end the script that the data lies in.
            content.replace(place, kPlace.size(),
                            std::regex_replace(data, std::regex("<"), "\\u003c"));
        }
        writeFile(folder / name, content);
    }
}

}  // namespace stage
