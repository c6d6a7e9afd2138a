// Rows of the recents list.
#include "phone/recents/PHRecentsCell.hpp"

#include <array>

#include "phone/incall/CallList.hpp"
#include "phone/recents/RecentsDate.hpp"
#include "phone/recents/UIDateLabel.hpp"
#include "uikit/Foundation.hpp"
#include "uikit/Registration.hpp"

namespace phone {
namespace {

constexpr CGFloat kLeft = 34;
constexpr CGFloat kInfoRoom = 47;  // right of the date
constexpr CGFloat kInfoSide = 44;
constexpr CGFloat kGap = 8;

}  // namespace

CallerTexts callerTexts(const PHRecentCall &call) {
    const Caller caller = callerWith(call.facts().number);
    if (call.contact() != nullptr) {
        return {caller.name, caller.label};
    }
    const std::string &place = call.facts().label;
    return {caller.name, place.empty() ? "未知" : place};
}

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
                     .method("setEditing:animated:"_sel, member<&Self::setEditingAnimated>)
                     .finish());
}

PHRecentsCell::~PHRecentsCell() {
    // Somebody may hold the content view for longer.
    if (SimView *const content = contentView()) {
        content->setConstraints({});
    }
}

id PHRecentsCell::initWithStyle(NSInteger style, NSString reuseIdentifier) {
    objc::sendSuper<PHRecentsCell, id(NSInteger, NSString)>(
        this, "initWithStyle:reuseIdentifier:"_sel, style, reuseIdentifier);
    const UIColor grey = color(142, 142, 147);
    callerNameLabel_ = makeLabel({}, 17, sim::TextAlignment::Left);
    callerLabelLabel_ = makeLabel({}, 12, sim::TextAlignment::Left);
    callerDateLabel_ = objc::Owned<UILabel>::adopt(UILabel(makeView<UIDateLabel>({}).leak()));
    callerNameLabel_->setFont(boldFont(17));
    callerLabelLabel_->setTextColor(grey);
    callerDateLabel_->setFont(UIFont::systemFontOfSize(14));
    callerDateLabel_->setTextColor(grey);
    infoButton_ = makeButton({}, "recents_info", "更多信息"_ns);
    outgoingGlyph_ = makePicture("recents_outgoing", {10, 8});
    const std::array<UIView, 5> parts = {callerNameLabel_.get(), callerLabelLabel_.get(),
                                         callerDateLabel_.get(), infoButton_.get(),
                                         outgoingGlyph_.get()};
    for (const UIView part : parts) {
        asView(*contentView()).addSubview(part);
    }
    setConstraints([] {});  // of the system's own parts, which UITableViewCell places
    contentView()->setConstraints([this] { placeParts(); });
    return *this;
}

void PHRecentsCell::setCall(NSObject call) {
    call_ = objc::Owned<NSObject>::share(call);
    if (const auto *const known = sim::instance<PHRecentCall>(call)) {
        showCall(*known);
    }
    setNeedsLayout();
}

void PHRecentsCell::showCall(const PHRecentCall &call) {
    const CallerTexts texts = callerTexts(call);
    callerNameLabel_->setText(sim::string(texts.name));
    callerNameLabel_->setTextColor(call.isMissed() ? color(255, 59, 48) : UIColor::blackColor());
    callerLabelLabel_->setText(sim::string(texts.label));
    outgoingGlyph_->setHidden(call.facts().incoming);
    const auto &date = call.facts().date;
    const RecentsDate shown = date && today_ ? recentsDate(*date, *today_) : RecentsDate{};
    callerDateLabel_->setText(sim::string(shown.text));
    sim::instance<UIDateLabel>(callerDateLabel_)->setTimeDesignator(sim::string(shown.designator));
}

/// In edit mode the row keeps its measures and the info button makes way.
void PHRecentsCell::placeParts() {
    const CGSize size = bounds().size;
    const CGFloat right = size.width - kInfoRoom;
    const CGFloat middle = size.height / 2;
    const CGFloat dateWidth = callerDateLabel_->intrinsicContentSize().width;
    const CGFloat nameWidth = right - dateWidth - kGap - kLeft;
    callerNameLabel_->setFrame(rect(kLeft, 5, nameWidth, 22));
    callerLabelLabel_->setFrame(rect(kLeft, 28, nameWidth, 15));
    callerDateLabel_->setFrame(rect(right - dateWidth, middle - 9, dateWidth, 18));
    infoButton_->setFrame(
        rect(size.width - kInfoSide, middle - kInfoSide / 2, kInfoSide, kInfoSide));
    infoButton_->setHidden(isEditing() && !isSwiped());
}

void PHRecentsCell::setEditingAnimated(bool editing, bool animated) {
    objc::sendSuper<PHRecentsCell, void(bool, bool)>(this, "setEditing:animated:"_sel, editing,
                                                     animated);
    contentView()->setNeedsLayout();
}

}  // namespace phone
