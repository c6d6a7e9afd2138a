// The status bar. Its time stands still, so that pictures are the same from run to run.
#include "phone/frame/PhoneStatusBar.hpp"

#include "uikit/Registration.hpp"

namespace phone {

void PhoneStatusBar::define() {
    using objc::member;
    sim::defined("PhoneStatusBar",
                 objc::ClassBuilder<PhoneStatusBar>("PhoneStatusBar", "UIView")
                     .method("initWithFrame:"_sel, member<&PhoneStatusBar::initWithFrame>)
                     .finish());
}

id PhoneStatusBar::initWithFrame(CGRect frame) {
    objc::sendSuper<PhoneStatusBar, id(CGRect)>(this, "initWithFrame:"_sel, frame);
    const CGFloat width = frame.size.width;
    time_ = makeLabel(rect(0, 0, width, frame.size.height), 12);
    time_->setFont(boldFont(12));
    time_->setText("9:41"_ns);
    signal_ = makePicture("status_signal", {6, 6});
    battery_ = makePicture("status_battery", {width - 31, 5});
    asView(*this).addSubview(signal_);
    asView(*this).addSubview(time_);
    asView(*this).addSubview(battery_);
    setUserInteractionEnabled(false);
    return *this;
}

void PhoneStatusBar::setLight() const {
    signal_->setImage(picture("status_signal_light"));
    time_->setTextColor(color(255, 255, 255));
    battery_->setImage(picture("status_battery_light"));
}

}  // namespace phone
