// Rows of the recents list.
#include "phone/recents/PHRecentsCell.hpp"

#include "phone/recents/UIDateLabel.hpp"
#include "uikit/Registration.hpp"
#include "uikit/SimScrollView.hpp"

namespace phone {
namespace {

constexpr CGFloat kLeft = 34;
constexpr CGFloat kRight = 273;  // where the date ends; the info button follows
constexpr CGFloat kGap = 8;

}  // namespace

void PHRecentsCell::define() {
    using objc::member;
    using Self = PHRecentsCell;
    sim::defined("PHRecentsCell",
                 objc::ClassBuilder<Self>("PHRecentsCell", "UITableViewCell")
                     .ivar<&Self::callerNameLabel_>("_callerNameLabel")
                     .ivar<&Self::callerLabelLabel_>("_callerLabelLabel")
                     .ivar<&Self::callerDateLabel_>("_callerDateLabel")
                     .ivar<&Self::call_>("_call")
                     .method("initWithStyle:reuseIdentifier:"_sel, member<&Self::initWithStyle>)
                     .method("call"_sel, member<&Self::call>)
                     .method("setCall:"_sel, member<&Self::setCall>)
                     .method("layoutSubviews"_sel, member<&Self::layoutSubviews>)
                     .method("setEditing:animated:"_sel, member<&Self::setEditingAnimated>)
                     .method("scrollViewWillEndDragging:withVelocity:targetContentOffset:"_sel,
                             member<&Self::scrollViewWillEndDragging>)
                     .finish());
}

id PHRecentsCell::initWithStyle(NSInteger style, NSString reuseIdentifier) {
    objc::sendSuper<PHRecentsCell, id(NSInteger, NSString)>(
        this, "initWithStyle:reuseIdentifier:"_sel, style, reuseIdentifier);
    const UIColor grey = color(142, 142, 147);
    callerNameLabel_ = makeLabel({}, 17, sim::TextAlignment::Left);
    callerLabelLabel_ = makeLabel({}, 12, sim::TextAlignment::Left);
    callerDateLabel_ = objc::Owned<UILabel>::adopt(UILabel(makeView<UIDateLabel>({}).leak()));
    callerLabelLabel_->setTextColor(grey);
    callerDateLabel_->setFont(UIFont::systemFontOfSize(14));
    callerDateLabel_->setTextColor(grey);
    for (const UILabel label :
         {callerNameLabel_.get(), callerLabelLabel_.get(), callerDateLabel_.get()}) {
        asView(*contentView()).addSubview(label);
    }
    return *this;
}

void PHRecentsCell::setCall(NSObject call) { call_ = objc::Owned<NSObject>::share(call); }

void PHRecentsCell::show(NSString name, NSString label, NSString date) {
    callerNameLabel_->setText(name);
    callerLabelLabel_->setText(label);
    callerDateLabel_->setText(date);
    setNeedsLayout();
}

void PHRecentsCell::layoutSubviews() {
    objc::sendSuper<PHRecentsCell, void()>(this, "layoutSubviews"_sel);
    const CGFloat dateWidth =
        hasText(callerDateLabel_->text()) ? callerDateLabel_->intrinsicContentSize().width : 0;
    const CGFloat nameWidth = kRight - dateWidth - kGap - kLeft;
    callerNameLabel_->setFrame(rect(kLeft, 5, nameWidth, 21));
    callerLabelLabel_->setFrame(rect(kLeft, 27, kRight - kLeft, 15));
    callerDateLabel_->setFrame(rect(kRight - dateWidth, 6, dateWidth, 18));
}

void PHRecentsCell::setEditingAnimated(bool editing, bool animated) {
    objc::sendSuper<PHRecentsCell, void(bool, bool)>(this, "setEditing:animated:"_sel, editing,
                                                     animated);
}

void PHRecentsCell::scrollViewWillEndDragging(SimScrollView *, CGPoint, CGPoint *) {}

}  // namespace phone
