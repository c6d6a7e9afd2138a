// The fonts of the simulator, loaded from its own fontconfig file, and Pango set up so that widths
// are the same at every scale. A text with characters that they lack is set in the machine's other
// fonts as well.
#pragma once

#include <memory>
#include <stdexcept>
#include <string_view>

#include <pango/pangocairo.h>

#include "uikit/drawing/Font.hpp"
#include "uikit/drawing/TextMemory.hpp"

namespace sim {

struct GObjectUnref {
    void operator()(gpointer object) const { g_object_unref(object); }
};
using PangoLayoutPtr = std::unique_ptr<PangoLayout, GObjectUnref>;

/// A font or the fontconfig file is missing; the message names it and the
/// package to install.
class FontError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// Fonts that are looked through together.
struct FontChoice {
    std::unique_ptr<PangoFontMap, GObjectUnref> map{};
    std::unique_ptr<PangoContext, GObjectUnref> context{};
};

class FontSet {
  public:
    /// Loaded on first use; throws FontError.
    static const FontSet &shared();

    FontSet(const FontSet &) = delete;
    FontSet &operator=(const FontSet &) = delete;
    ~FontSet();

    /// One line of text, shaped and ready to be measured or drawn, shared with whoever asks for the
    /// same.
    PangoLayoutPtr shape(std::string_view utf8, const Font &font) const;

  private:
    FontSet();

    FontChoice own_;
    mutable TextMemory<char, PangoLayoutPtr> known_;
};

}  // namespace sim
