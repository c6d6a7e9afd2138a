// Loads fonts.conf, which the build lays at ../share beside the folder of this
// library.
#include "uikit/drawing/FontSet.hpp"

#include <array>
#include <filesystem>
#include <string>

#include <dlfcn.h>
#include <fontconfig/fontconfig.h>
#include <pango/pangofc-fontmap.h>

#if defined(__SANITIZE_ADDRESS__)
#include <sanitizer/lsan_interface.h>
#endif

namespace sim {
namespace {

struct FcConfigDestroyer {
    void operator()(FcConfig *config) const { FcConfigDestroy(config); }
};
using FcConfigPtr = std::unique_ptr<FcConfig, FcConfigDestroyer>;

struct NeededFont {
    const char *family;
    const char *package;
};
constexpr std::array kNeededFonts{
    NeededFont{"TeX Gyre Heros", "fonts-texgyre"},
    NeededFont{"Roboto", "fonts-roboto-unhinted"},
    NeededFont{"Noto Sans CJK SC", "fonts-noto-cjk"},
};

std::filesystem::path fontsFile() {
    Dl_info info{};
    // Any address inside this library serves; the class's own function is the
    // nearest one.
    if (dladdr(reinterpret_cast<const void *>(&FontSet::shared), &info) == 0) {
        throw FontError(
            "fonts: the folder of libUIKit.so is unknown; load it as a "
            "shared library");
    }
    const auto library = std::filesystem::canonical(info.dli_fname);
    return library.parent_path().parent_path() / "share" / "fonts.conf";
}

/// Adds the rules of the simulator's file, and the fonts that it names when the configuration has
/// not been given any yet.
void addOwnRules(FcConfig *config) {
    const std::string file = fontsFile().string();
    const auto *name = reinterpret_cast<const FcChar8 *>(file.c_str());
    if (FcConfigParseAndLoad(config, name, FcTrue) == FcFalse) {
        throw FontError(file + ": missing or damaged; build the project again");
    }
}

FcConfigPtr loadConfig() {
    FcConfigPtr config(FcConfigCreate());
    addOwnRules(config.get());
    FcConfigBuildFonts(config.get());
    return config;
}

bool lacksGlyphs(const PangoLayoutPtr &layout) {
    return pango_layout_get_unknown_glyphs_count(layout.get()) > 0;
}

bool hasFamily(FcConfig *config, const char *family) {
    FcPattern *pattern = FcPatternBuild(nullptr, FC_FAMILY, FcTypeString, family, nullptr);
    FcObjectSet *wanted = FcObjectSetBuild(FC_FILE, nullptr);
    FcFontSet *found = FcFontList(config, pattern, wanted);
    const bool any = found != nullptr && found->nfont > 0;
    FcFontSetDestroy(found);
    FcObjectSetDestroy(wanted);
    FcPatternDestroy(pattern);
    return any;
}

void requireFonts(FcConfig *config) {
    for (const NeededFont &font : kNeededFonts) {
        if (!hasFamily(config, font.family)) {
            throw FontError(std::string("font \"") + font.family +
                            "\" is not installed; install the package " + font.package);
        }
    }
}

PangoWeight pangoWeight(FontWeight weight) {
    switch (weight) {
    case FontWeight::Light:
        return PANGO_WEIGHT_LIGHT;
    case FontWeight::Regular:
        return PANGO_WEIGHT_NORMAL;
    case FontWeight::Bold:
        return PANGO_WEIGHT_BOLD;
    }
    return PANGO_WEIGHT_NORMAL;
}

/// Hinting would round advances to whole pixels and so tie widths to the scale.
void useUnhintedFonts(PangoContext *context) {
    cairo_font_options_t *options = cairo_font_options_create();
    cairo_font_options_set_antialias(options, CAIRO_ANTIALIAS_GRAY);
    cairo_font_options_set_hint_style(options, CAIRO_HINT_STYLE_NONE);
    cairo_font_options_set_hint_metrics(options, CAIRO_HINT_METRICS_OFF);
    pango_cairo_context_set_font_options(context, options);
    cairo_font_options_destroy(options);
    pango_context_set_round_glyph_positions(context, FALSE);
}

FontChoice choiceOf(FcConfig *config) {
    FontChoice choice;
    choice.map.reset(pango_cairo_font_map_new_for_font_type(CAIRO_FONT_TYPE_FT));
    pango_fc_font_map_set_config(PANGO_FC_FONT_MAP(choice.map.get()), config);
    choice.context.reset(pango_font_map_create_context(choice.map.get()));
    useUnhintedFonts(choice.context.get());
    // Without a language Pango would pick the Han shapes by the user's locale.
    pango_context_set_language(choice.context.get(), pango_language_from_string("zh-cn"));
    return choice;
}

/// Fontconfig itself loses some of what it reads of a machine's configuration, which the leak check
/// is told to overlook, and nothing else.
FcConfigPtr machinesConfig() {
#if defined(__SANITIZE_ADDRESS__)
    const __lsan::ScopedDisabler overlooked;
#endif
    return FcConfigPtr(FcInitLoadConfigAndFonts());
}

/// All fonts of the machine, the simulator's own first; without a context when the machine has no
/// configuration. Loaded when a text needs it, which most runs spare themselves.
const FontChoice &everything() {
    static const FontChoice g_everything = [] {
        const FcConfigPtr config = machinesConfig();
        if (!config) {
            return FontChoice();
        }
        addOwnRules(config.get());
        return choiceOf(config.get());
    }();
    return g_everything;
}

PangoLayoutPtr shaped(std::string_view utf8, const Font &font, const FontChoice &choice) {
    PangoLayoutPtr layout(pango_layout_new(choice.context.get()));
    PangoFontDescription *description = pango_font_description_new();
    pango_font_description_set_family_static(description, "Helvetica Neue");
    pango_font_description_set_weight(description, pangoWeight(font.weight));
    pango_font_description_set_absolute_size(description, font.points * PANGO_SCALE);
    pango_layout_set_font_description(layout.get(), description);
    pango_font_description_free(description);
    pango_layout_set_single_paragraph_mode(layout.get(), TRUE);
    pango_layout_set_text(layout.get(), utf8.data(), static_cast<int>(utf8.size()));
    return layout;
}

}  // namespace

const FontSet &FontSet::shared() {
    static const FontSet g_set;
    return g_set;
}

FontSet::FontSet() {
    const FcConfigPtr config = loadConfig();
    requireFonts(config.get());
    // Pango and cairo ask for the process's own configuration too; it must not be the user's.
    FcConfigSetCurrent(config.get());
    own_ = choiceOf(config.get());
}

FontSet::~FontSet() = default;

PangoLayoutPtr FontSet::shape(std::string_view utf8, const Font &font) const {
    const PangoLayoutPtr &layout = known_.get(utf8, font, [&] {
        PangoLayoutPtr own = shaped(utf8, font, own_);
        // Asked only for texts that would show boxes: all others look the same on every machine.
        return lacksGlyphs(own) && everything().context ? shaped(utf8, font, everything())
                                                        : std::move(own);
    });
    return PangoLayoutPtr(PANGO_LAYOUT(g_object_ref(layout.get())));
}

}  // namespace sim
