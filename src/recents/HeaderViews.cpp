// The views of the detail header.
#include "recents/HeaderViews.hpp"

#include "companion/Interface.hpp"

namespace recents {
namespace {

enum HeaderTag : NSInteger {
    kDescriptionTag = 1001,
    kLogoTag = 1002,
    kProductTag = 1004,
    kSpareTag = 1005,
    kWarningTag = 1006,
    kCorrectTag = 1007,
    kMarkTag = 1008,
    kSearchTag = 1009,
};

UIColor grey(double level) { return ZQUIUtil::getFormattedColor(level, level, level, 1); }

UILabel addLabel(UIView header, CGRect frame, UIColor color, HeaderTag tag) {
    const UILabel label = withFrame<UILabel>(frame).autorelease();
    label.setBackgroundColor(UIColor::clearColor());
    label.setTextColor(color);
    label.setFont(UIFont::systemFontOfSize(13));
    addTagged(header, label, tag);
    return label;
}

UILabel addHiddenLabel(UIView header, UIColor color, HeaderTag tag) {
    const UILabel label = addLabel(header, {}, color, tag);
    label.setHidden(true);
    return label;
}

void addLogo(UIView header, CGRect frame) {
    const auto logo = withFrame<UIImageView>(frame);
    logo->setImage(recordIcon());
    logo->setBackgroundColor(UIColor::clearColor());
    addTagged(header, logo, kLogoTag);
}

ZQGroupButton addButton(UIView header, CGRect frame, SEL action) {
    const ZQGroupButton button = objc::create<ZQGroupButton>().autorelease();
    button.setFrame(frame);
    button.setHidden(true);
    button.addTarget(objc::asObject("ZQSystemCallHistoryViewHook"_cls), action, kTouchUpInside);
    header.addSubview(button);
    return button;
}

void showButton(ZQGroupButton button, const HeaderButton &place, UIImage icon, NSString title) {
    button.setFrame(place.frame);
    button.setBackgroundImage(place.part);
    button.setIcon(icon, title);
}

// Holds a reference; an Owned here would ask for code at load.
constinit UIImage g_recordIconImage;

}  // namespace

UIImage recordIcon() {
    if (!g_recordIconImage) {
        const UIImage loaded = resourceImage("icon_zqrLogo_in_systemCallHistoryDetailsView.png"_ns);
        g_recordIconImage = objc::Owned<UIImage>::share(loaded).leak();
    }
    return g_recordIconImage;
}

HeaderViews HeaderViews::find(UIView header) {
    HeaderViews views;
    views.description_ = header.viewWithTag(kDescriptionTag).as<UILabel>();
    views.product_ = header.viewWithTag(kProductTag).as<UILabel>();
    views.warning_ = header.viewWithTag(kWarningTag).as<UILabel>();
    views.correct_ = header.viewWithTag(kCorrectTag).as<ZQGroupButton>();
    views.mark_ = header.viewWithTag(kMarkTag).as<ZQGroupButton>();
    views.search_ = header.viewWithTag(kSearchTag).as<ZQGroupButton>();
    return views;
}

HeaderViews HeaderViews::create(UIView header, bool from80) {
    const NewHeader frames = newHeader(from80);
    HeaderViews views;
    views.description_ = addHiddenLabel(header, UIColor::blackColor(), kDescriptionTag);
    addHiddenLabel(header, grey(145), kSpareTag);  // never shown
    addLogo(header, frames.logo);
    views.product_ = addLabel(header, frames.product, grey(180), kProductTag);
    views.product_.setText("Zequor"_ns);
    views.warning_ = addHiddenLabel(header, grey(145), kWarningTag);
    views.warning_.setText("若非国外亲友，请警惕诈骗"_ns);
    views.search_ = addButton(header, frames.wholeButton, "searchNumBtnPressed"_sel);
    views.mark_ = addButton(header, frames.halfButton, "markButtonPressed"_sel);
    views.correct_ = addButton(header, frames.halfButton, "correctButtonPressed"_sel);
    return views;
}

void HeaderViews::remove(UIView header) {
    // A copy, since the array may be the header's own.
    const auto subviews = objc::Owned<ArrayOf<UIView>>::adopt(
        objc::send<ArrayOf<UIView>()>(header.subviews(), "copy"_sel));
    for (const UIView view : subviews.get()) {
        const bool isTagged = view.tag() >= kDescriptionTag && view.tag() <= kWarningTag;
        if (isTagged || view.isKindOfClass(ZQGroupButton::classObject())) {
            view.removeFromSuperview();
        }
    }
}

void HeaderViews::showButtons(OfferedActions offered, const HeaderPlaces &places) const {
    if (!correct_ && !mark_ && !search_) {
        return;  // no button to put a picture on
    }
    correct_.setHidden(!offered.correct);
    mark_.setHidden(!offered.mark);
    search_.setHidden(false);
    const auto icon = [](bool isShown, NSString fileName) {
        return isShown ? resourceImage(fileName) : UIImage();
    };
    const UIImage correctIcon =
        icon(offered.correct, "btn_icon_modify_in_systemCallHistoryDetailsView.png"_ns);
    const UIImage markIcon =
        icon(offered.mark, "btn_icon_tag_in_systemCallHistoryDetailsView.png"_ns);
    const UIImage searchIcon = icon(true, "btn_icon_search_in_systemCallHistoryDetailsView.png"_ns);
    if (offered.correct) {
        showButton(correct_, places.correct, correctIcon, "纠错"_ns);
    } else {
        correct_.setIcon(correctIcon, "纠错"_ns);
    }
    if (offered.mark) {
        showButton(mark_, places.mark, markIcon, "标记"_ns);
    } else {
        mark_.setIcon(markIcon, "标记"_ns);
    }
    showButton(search_, places.search, searchIcon, "搜索"_ns);
}

}  // namespace recents
