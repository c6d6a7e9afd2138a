// The in-call display's text view.
#include "phone/incall/TPLCDTextView.hpp"

#include "uikit/Registration.hpp"

namespace phone {

void TPLCDTextView::define() {
    using objc::member;
    using Self = TPLCDTextView;
    sim::defined("TPLCDTextView", objc::ClassBuilder<Self>("TPLCDTextView", "UIView")
                                      .method("initWithFrame:"_sel, member<&Self::initWithFrame>)
                                      .method("text"_sel, member<&Self::text>)
                                      .method("setText:"_sel, member<&Self::setText>)
                                      .method("setCenterText:"_sel, member<&Self::setCenterText>)
                                      .method("setLCDTextFont:"_sel, member<&Self::setLCDTextFont>)
                                      .method("layoutSubviews"_sel, member<&Self::layoutSubviews>)
                                      .finish());
}

id TPLCDTextView::initWithFrame(CGRect frame) {
    objc::sendSuper<TPLCDTextView, id(CGRect)>(this, "initWithFrame:"_sel, frame);
    label_ = makeLabel({}, 30, sim::TextAlignment::Left);
    label_->setTextColor(color(255, 255, 255));
    asView(*this).addSubview(label_);
    return *this;
}

void TPLCDTextView::setCenterText(bool centred) {
    simLabel(label_)->setTextAlignment(centred ? sim::TextAlignment::Center
                                               : sim::TextAlignment::Left);
}

void TPLCDTextView::layoutSubviews() { label_->setFrame(asView(*this).bounds()); }

}  // namespace phone
