// The views of the detail header. They are found again by tag, since the header owns them; but the
// buttons never get theirs, so that only the pass that creates them can reach them, and they keep
// what they were given then.
#pragma once

#include "recents/Actions.hpp"
#include "recents/Geometry.hpp"
#include "recents/GroupButton.hpp"

namespace recents {

/// The companion's logo; nil as long as its file is missing.
UIImage recordIcon();

class HeaderViews {
  public:
    /// Those that `header` holds; false when it has none yet.
    static HeaderViews find(UIView header);
    static HeaderViews create(UIView header, bool from80);
    /// Takes away what `header` holds of them, the buttons too.
    static void remove(UIView header);

    UILabel description() const { return description_; }
    UILabel product() const { return product_; }
    UILabel warning() const { return warning_; }
    explicit operator bool() const { return static_cast<bool>(description_); }

    /// Does nothing where there is no button to reach.
    void showButtons(OfferedActions offered, const HeaderPlaces &places) const;

  private:
    UILabel description_, product_, warning_;
    ZQGroupButton correct_, mark_, search_;
};

}  // namespace recents
