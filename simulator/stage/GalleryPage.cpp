// Writing the gallery's page. Picking a device is done by radio buttons and a style sheet alone.
#include "stage/GalleryPage.hpp"

#include <algorithm>
#include <memory>

#include <glib.h>

namespace stage {
namespace {

constexpr std::string_view kStyle = R"(
body { font: 15px/1.5 system-ui, sans-serif; margin: 0 auto; max-width: 1080px; padding: 24px;
       color: #1c1c1e; background: #f2f2f7; }
h1 { font-weight: 600; } h2 { margin: 40px 0 0; scroll-margin-top: 16px; }
h3 { font-size: 18px; margin: 0; } p { margin: 2px 0 12px; color: #636366; }
nav a { margin-right: 16px; color: #007aff; text-decoration: none; }
section { background: #fff; border-radius: 12px; padding: 20px; margin: 16px 0; }
input { position: absolute; opacity: 0; }
label { display: inline-block; padding: 6px 14px; margin: 0 6px 8px 0; border-radius: 16px;
        background: #e5e5ea; cursor: pointer; }
input:focus-visible + label { outline: 2px solid #007aff; }
.pair { display: none; gap: 24px; flex-wrap: wrap; }
figure { margin: 0; width: 320px; }
img { width: 320px; height: auto; border: 1px solid #d1d1d6; border-radius: 4px; display: block; }
figcaption { padding-top: 6px; font-size: 13px; color: #48484a; }
)";

constexpr auto kOwnWorld =
    "The titles and notes tell what the sample world has in these places; what is shown is a world "
    "or a call history of your own. ";

std::string cssName(const Model &model) {
    std::string name = "d-" + model.slug();
    for (char &c : name) {
        c = c == '.' ? '-' : c;
    }
    return name;
}

/// For each device: its button looks chosen, and its pictures are shown.
std::string chooserStyle(std::span<const Model> models) {
    std::string style;
    for (const Model &model : models) {
        style += "#" + cssName(model) + ":checked + label { background: #007aff; color: #fff; }\n";
        style += "#" + cssName(model) + ":checked ~ section ." + cssName(model) +
                 " { display: flex; }\n";
    }
    return style;
}

std::string chooser(std::span<const Model> models) {
    std::string buttons;
    for (const Model &model : models) {
        buttons += R"(<input type="radio" name="device" id=")" + cssName(model) + "\"" +
                   (&model == models.data() ? " checked" : "") + "><label for=\"" + cssName(model) +
                   "\">" + escapedHtml(model.title()) + "</label>\n";
    }
    return buttons;
}

std::string figure(const std::string &picture, const std::string &who, const std::string &caption) {
    const std::string said = caption.empty() ? "" : ": " + escapedHtml(caption);
    return R"(<figure><img loading="lazy" src=")" + escapedHtml(picture) + "\" alt=\"" + who +
           said + "\"><figcaption>" + who + said + "</figcaption></figure>\n";
}

std::string section(const Scene &scene, std::span<const Exhibit> exhibits) {
    std::string html = "<section id=\"" + escapedHtml(scene.name) + "\">\n<h3>" +
                       escapedHtml(scene.title) + "</h3>\n<p>" + escapedHtml(scene.note) + "</p>\n";
    for (const Exhibit &exhibit : exhibits) {
        if (exhibit.scene == scene.name) {
            html += "<div class=\"pair " + cssName(exhibit.model) + "\">\n" +
                    figure(exhibit.pictureWithout, "Without the add-on", exhibit.captionWithout) +
                    figure(exhibit.pictureWith, "With it", exhibit.captionWith) + "</div>\n";
        }
    }
    return html + "</section>\n";
}

/// Where on the page each screen begins.
std::string contents(std::span<const SceneGroup> groups) {
    std::string links = "<nav>";
    for (const SceneGroup &group : groups) {
        links +=
            "<a href=\"#" + escapedHtml(group.name) + "\">" + escapedHtml(group.title) + "</a>";
    }
    return links + "</nav>\n";
}

std::string heading(const SceneGroup &group) {
    return "<h2 id=\"" + escapedHtml(group.name) + "\">" + escapedHtml(group.title) + "</h2>\n";
}

}  // namespace

std::string escapedHtml(std::string_view text) {
    const std::unique_ptr<char, decltype(&g_free)> escaped(
        g_markup_escape_text(text.data(), static_cast<gssize>(text.size())), g_free);
    return escaped.get();
}

std::string galleryPage(std::span<const SceneGroup> groups, std::span<const Model> models,
                        std::span<const Exhibit> exhibits, bool isSample) {
    std::string html =
        "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
        "<title>libZQDial: the gallery</title>\n<style>";
    html += kStyle;
    html += chooserStyle(models) + "</style>\n</head>\n<body>\n<h1>libZQDial</h1>\n" +
            "<p>The simulated Phone application without and with the add-on. " +
            (isSample ? "" : kOwnWorld) + "Pick a device:</p>\n" + chooser(models) +
            contents(groups);
    // Headings and scenes lie side by side: the style sheet reaches the scenes from the buttons.
    for (const SceneGroup &group : groups) {
        html += heading(group);
        for (const Scene &scene : group.scenes) {
            if (std::ranges::find(exhibits, scene.name, &Exhibit::scene) != exhibits.end()) {
                html += section(scene, exhibits);
            }
        }
    }
    return html + "</body>\n</html>\n";
}

}  // namespace stage
