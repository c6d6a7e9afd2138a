// The in-call displays' parts. Whatever changes, the next layout places all of them anew.
#include "phone/incall/TPLCDView.hpp"

#include "phone/incall/TPLCDTextView.hpp"
#include "uikit/Device.hpp"
#include "uikit/Foundation.hpp"
#include "uikit/Registration.hpp"

namespace phone {
namespace {

/// The font that a name is written in where it has `width` points: the smaller one if it has to be.
UIFont fittingFont(NSString text, CGFloat width, const DisplayFrames &frames) {
    const UIFont large = lightFont(frames.textPoints);
    const CGSize size = objc::send<CGSize(UIFont)>(text, "sizeWithFont:"_sel, large);
    return size.width <= width ? large : lightFont(frames.smallTextPoints);
}

struct Row {
    UIView name;
    UIView label;
};

/// The label stands as the name does, which may have been told otherwise.
void place(const Row &row, CGRect nameFrame, CGRect labelFrame, const DisplayFrames &frames,
           bool centred) {
    row.name.setFrame(nameFrame);
    row.label.setFrame(labelFrame);
    const auto text = objc::send<NSString()>(row.name, "text"_sel);
    objc::send<void(UIFont)>(row.name, "setLCDTextFont:"_sel,
                             fittingFont(text, nameFrame.size.width, frames));
    objc::send<void(UIFont)>(row.label, "setLCDTextFont:"_sel,
                             UIFont::systemFontOfSize(frames.labelPoints));
    objc::send<void(bool)>(row.name, "setCenterText:"_sel, centred);
    objc::send<void(bool)>(row.label, "setCenterText:"_sel,
                           sim::instance<TPLCDTextView>(row.name)->isTextCentered());
}

}  // namespace

void TPLCDView::define() {
    using objc::member;
    using Self = TPLCDView;
    sim::defined("TPLCDBar", objc::ClassBuilder<TPLCDBar>("TPLCDBar", "UIView").finish());
    sim::defined(
        "TPLCDSubImageView",
        objc::ClassBuilder<TPLCDSubImageView>("TPLCDSubImageView", "UIImageView").finish());
    sim::defined("TPLCDView", objc::ClassBuilder<Self>("TPLCDView", "TPLCDBar")
                                  .ivar<&Self::textView_>("_textView")
                                  .ivar<&Self::labelView_>("_labelView")
                                  .ivar<&Self::secondTextView_>("_secondTextView")
                                  .ivar<&Self::secondLabelView_>("_secondLabelView")
                                  .ivar<&Self::imageView_>("_imageView")
                                  .ivar<&Self::contentView_>("_contentView")
                                  .method("initWithFrame:"_sel, member<&Self::initWithFrame>)
                                  .method("layoutSubviews"_sel, member<&Self::layoutSubviews>)
                                  .method("setText:"_sel, member<&Self::setText>)
                                  .method("setLabel:"_sel, member<&Self::setLabel>)
                                  .method("setSecondText:"_sel, member<&Self::setSecondText>)
                                  .method("setSecondLabel:"_sel, member<&Self::setSecondLabel>)
                                  .method("setImage:"_sel, member<&Self::setImage>)
                                  .method("setShowsContact:"_sel, member<&Self::setShowsContact>)
                                  .method("setCenterText:"_sel, member<&Self::setCenterText>)
                                  .finish());
}

id TPLCDView::initWithFrame(CGRect frame) {
    objc::sendSuper<TPLCDView, id(CGRect)>(this, "initWithFrame:"_sel, frame);
    using Line = TPLCDTextView::Line;
    textView_ = TPLCDTextView::make(Line::Name);
    labelView_ = TPLCDTextView::make(Line::Label);
    secondTextView_ = TPLCDTextView::make(Line::Name);
    secondLabelView_ = TPLCDTextView::make(Line::Label);
    addLines();
    return *this;
}

void TPLCDView::useContentView() {
    display_ = Display::Field;
    contentView_ = makeView<SimView>(asView(*this).bounds());
    asView(*this).addSubview(contentView_);
    addLines();
}

void TPLCDView::addLines() const {
    for (const UIView line :
         {textView_.get(), labelView_.get(), secondTextView_.get(), secondLabelView_.get()}) {
        holder().addSubview(line);
    }
}

void TPLCDView::setText(NSString text) {
    objc::send<void(NSString)>(textView_.get(), "setText:"_sel, text);
    setNeedsLayout();
}

void TPLCDView::setLabel(NSString label) {
    objc::send<void(NSString)>(labelView_.get(), "setText:"_sel, label);
    setNeedsLayout();
}

void TPLCDView::setSecondText(NSString text) {
    hasTwoRows_ = text != nullptr;
    objc::send<void(NSString)>(secondTextView_.get(), "setText:"_sel, text);
    setNeedsLayout();
}

void TPLCDView::setSecondLabel(NSString label) {
    objc::send<void(NSString)>(secondLabelView_.get(), "setText:"_sel, label);
    setNeedsLayout();
}

void TPLCDView::setImage(UIImage image) {
    if (!image) {
        imageView_->removeFromSuperview();
        imageView_ = {};
    } else if (!imageView_) {
        imageView_ = makeView<TPLCDSubImageView>({});
        holder().addSubview(imageView_);
    }
    objc::send<void(UIImage)>(imageView_.get(), "setImage:"_sel, image);
    setNeedsLayout();
}

void TPLCDView::setShowsContact(bool isContact) {
    isContact_ = isContact;
    setNeedsLayout();
}

void TPLCDView::setCenterText(bool centred) {
    centred_ = centred;
    setNeedsLayout();
}

void TPLCDView::placeImage(CGRect frame) const {
    imageView_->setFrame(frame);
    if (auto *const view = sim::instance<SimView>(imageView_)) {
        view->setContentMode(ContentMode::ScaleAspectFill);
        view->layer()->setCornerRadius(frame.size.width / 2);
        view->layer()->setMasksToBounds(true);
    }
}

void TPLCDView::layoutSubviews() {
    // Before 7.1 the add-on's line is below a contact's label, too.
    const bool isContact = isContact_ && sim::Device::current().isAtLeast(7, 1);
    const DisplayFrames frames =
        displayFrames({display_, currentInCallLook().isTall(), static_cast<bool>(imageView_),
                       isContact, hasTwoRows_});
    const bool centred = centred_ && !hasTwoRows_;
    contentView_->setFrame(asView(*this).bounds());
    place({textView_, labelView_}, frames.text, frames.label, frames, centred);
    secondTextView_->setHidden(!hasTwoRows_);
    secondLabelView_->setHidden(!hasTwoRows_);
    if (hasTwoRows_) {
        place({secondTextView_, secondLabelView_}, frames.secondText, frames.secondLabel, frames,
              centred);
    }
    placeImage(frames.image);
}

}  // namespace phone
