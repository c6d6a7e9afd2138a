// The dialer's display.
#include "phone/dialer/PHHandsetDialerLCDView.hpp"

#include "phone/dialer/DialerLook.hpp"
#include "phone/dialer/PHHandsetDialerNameLabelView.hpp"
#include "uikit/Registration.hpp"
#include "uikit/SimEvent.hpp"
#include "uikit/SimTouch.hpp"

namespace phone {
namespace {

constexpr CGFloat kTallPoints = 36;
constexpr CGFloat kShortPoints = 32;
constexpr CGFloat kSmallestShare = 0.55;  // of the font size, before the head is cut off

objc::Owned<UILabel> makeNumberLabel(const DialerLook &look, CGRect frame) {
    const CGFloat points = look.isTall() ? kTallPoints : kShortPoints;
    auto label = makeLabel(frame, points);
    label->setFont(lightFont(points));
    SimLabel *const number = simLabel(label);
    number->setAdjustsFontSizeToFitWidth(true);
    number->setMinimumScaleFactor(kSmallestShare);
    number->setLineBreakMode(sim::LineBreak::TruncateHead);
    return label;
}

}  // namespace

void PHHandsetDialerLCDView::define() {
    using objc::member;
    using Self = PHHandsetDialerLCDView;
    sim::defined("PHHandsetDialerLCDView",
                 objc::ClassBuilder<Self>("PHHandsetDialerLCDView", "UIView")
                     .ivar<&Self::numberLabel_>("_numberLabel")
                     .ivar<&Self::nameLine_>("_nameAndLabelView")
                     .ivar<&Self::delegate_>("_delegate")
                     .method("initWithFrame:"_sel, member<&Self::initWithFrame>)
                     .method("setDelegate:"_sel, member<&Self::setDelegate>)
                     .method("delegate"_sel, member<&Self::delegate>)
                     .method("numberLabel"_sel, member<&Self::numberLabel>)
                     .method("nameAndLabelView"_sel, member<&Self::nameAndLabelView>)
                     .method("setText:"_sel, member<&Self::setText>)
                     .method("setName:numberLabel:"_sel, member<&Self::setNameNumberLabel>)
                     .method("touchesBegan:withEvent:"_sel, member<&Self::touchesBegan>)
                     .method("touchesEnded:withEvent:"_sel, member<&Self::touchesEnded>)
                     .finish());
}

id PHHandsetDialerLCDView::initWithFrame(CGRect frame) {
    objc::sendSuper<PHHandsetDialerLCDView, id(CGRect)>(this, "initWithFrame:"_sel, frame);
    const DialerLook look = currentLook();
    const DialerFrames frames = dialerFrames(look);
    numberLabel_ = makeNumberLabel(look, frames.numberLine);
    nameLine_ = makeView<PHHandsetDialerNameLabelView>(frames.nameLine);
    asView(*this).addSubview(numberLabel_);
    asView(*this).addSubview(nameLine_);
    return *this;
}

PHHandsetDialerNameLabelView *PHHandsetDialerLCDView::line() const {
    return objc::Wire<PHHandsetDialerNameLabelView *>::from(nameLine_.get());
}

void PHHandsetDialerLCDView::setText(NSString number) { numberLabel_->setText(number); }

void PHHandsetDialerLCDView::setNameNumberLabel(NSString name, NSString label) {
    const bool isContact = hasText(name) || hasText(label);
    line()->setPressed(false);
    offersToAdd_ = !isContact && hasText(numberLabel_->text());
    if (isContact) {
        line()->showContact(name, label);
    } else {
        line()->showOffer(offersToAdd_);
    }
}

void PHHandsetDialerLCDView::touchesBegan(NSObject, SimEvent *) { line()->setPressed(true); }

void PHHandsetDialerLCDView::touchesEnded(NSObject touches, SimEvent *) {
    line()->setPressed(false);
    const auto touch = objc::Wire<SimTouch *>::from(objc::send<id()>(touches, "anyObject"_sel));
    const CGPoint at = touch->locationInView(this);
    // The line is the place whatever covers it: what stands there may not take touches itself.
    const CGRect target = nameLine_->frame();
    const bool hit = at.y >= target.origin.y && at.y < target.origin.y + target.size.height;
    if (hit && offersToAdd_) {
        objc::send<void(NSObject)>(delegate_, "dialerLCDViewDidTapAddToContacts:"_sel,
                                   NSObject(*this));
    }
}

}  // namespace phone
