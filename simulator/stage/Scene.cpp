// Commands are split as a shell does it.
#include "stage/Scene.hpp"

#include <memory>
#include <set>

#include <glib.h>
#include <nlohmann/json.hpp>

#include "companion/world/JsonFile.hpp"
#include "phone/Resources.hpp"
#include "stage/Commands.hpp"
#include "stage/Errors.hpp"

namespace stage {
namespace {

using nlohmann::json;

std::vector<std::string> shellWords(const std::string &command) {
    int count = 0;
    char **words = nullptr;
    if (g_shell_parse_argv(command.c_str(), &count, &words, nullptr) == FALSE) {
        throw UsageError("no shell would take '" + command + "'");
    }
    const std::unique_ptr<char *, decltype(&g_strfreev)> owner(words, g_strfreev);
    return {words, words + count};
}

Scene readScene(const json &row) {
    Scene scene;
    scene.name = row.at("name");
    scene.title = row.at("title");
    scene.note = row.at("note");
    scene.command = row.at("command");
    scene.systems = row.value("systems", scene.systems);
    const std::vector<std::string> words = shellWords(scene.command);
    if (words.front() != kProgram) {
        throw UsageError("the command has to begin with " + std::string(kProgram));
    }
    scene.request = readRequest(std::span(words).subspan(1));
    return scene;
}

}  // namespace

std::filesystem::path scenesFile() { return phone::installFolder() / "share" / "scenes.json"; }

SceneGroups readScenes(const std::filesystem::path &file) {
    SceneGroups groups;
    std::set<std::string> names;
    std::string place = file.string();
    try {
        for (const json &part : companion::readJsonFile(file)) {
            SceneGroup &group = groups.emplace_back();
            group.name = part.at("name");
            group.title = part.at("title");
            for (const json &row : part.at("scenes")) {
                place = file.string() + ": " + row.value("name", "a scene without a name");
                group.scenes.push_back(readScene(row));
                if (!names.insert(group.scenes.back().name).second) {
                    throw UsageError("two scenes have this name");
                }
            }
        }
    } catch (const std::exception &error) {
        throw Failure(place + ": " + error.what());
    }
    return groups;
}

}  // namespace stage
