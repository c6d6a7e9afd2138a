// The in-call displays.
#include "phone/incall/TPLCDView.hpp"

#include "phone/incall/TPLCDLabelView.hpp"
#include "phone/incall/TPLCDTextView.hpp"
#include "uikit/Registration.hpp"

namespace phone {
namespace {

constexpr CGFloat kMargin = 20;
constexpr CGFloat kPictureSide = 74;
constexpr CGFloat kPictureX = 226;
constexpr CGFloat kTextBesidePicture = 190;
constexpr CGFloat kLabelHeight = 22;

}  // namespace

void TPLCDView::define() {
    using objc::member;
    sim::defined("TPLCDView", objc::ClassBuilder<TPLCDView>("TPLCDView", "UIView")
                                  .ivar<&TPLCDView::textView_>("_textView")
                                  .ivar<&TPLCDView::labelView_>("_labelView")
                                  .ivar<&TPLCDView::imageView_>("_imageView")
                                  .ivar<&TPLCDView::contentView_>("_contentView")
                                  .method("initWithFrame:"_sel, member<&TPLCDView::initWithFrame>)
                                  .method("setText:"_sel, member<&TPLCDView::setText>)
                                  .method("setLabel:"_sel, member<&TPLCDView::setLabel>)
                                  .method("setImage:"_sel, member<&TPLCDView::setImage>)
                                  .method("setCenterText:"_sel, member<&TPLCDView::setCenterText>)
                                  .finish());
    InCallLCDView::define();
    InCallLCDField::define();
}

id TPLCDView::initWithFrame(CGRect frame) {
    objc::sendSuper<TPLCDView, id(CGRect)>(this, "initWithFrame:"_sel, frame);
    textView_ = makeView<TPLCDTextView>({});
    labelView_ = makeView<TPLCDLabelView>({});
    holder().addSubview(textView_);
    holder().addSubview(labelView_);
    return *this;
}

void TPLCDView::useContentView() {
    contentView_ = makeView<SimView>(asView(*this).bounds());
    asView(*this).addSubview(contentView_);
    contentView_->addSubview(textView_);
    contentView_->addSubview(labelView_);
}

void TPLCDView::setText(NSString text) {
    objc::send<void(NSString)>(textView_.get(), "setText:"_sel, text);
}

void TPLCDView::setLabel(NSString label) {
    objc::send<void(NSString)>(labelView_.get(), "setText:"_sel, label);
}

void TPLCDView::setImage(UIImage image) {
    imageView_->removeFromSuperview();
    imageView_ = {};
    if (image) {
        auto view = objc::create<UIImageView(CGRect)>("initWithFrame:"_sel, CGRect{});
        view->setImage(image);
        imageView_ = objc::Owned<UIView>::adopt(view.leak());
        holder().addSubview(imageView_);
    }
    setNeedsLayout();
}

void TPLCDView::setCenterText(bool centred) {
    objc::send<void(bool)>(textView_.get(), "setCenterText:"_sel, centred);
    objc::send<void(bool)>(labelView_.get(), "setCenterText:"_sel, centred);
}

void TPLCDView::placeLines(CGFloat top, CGFloat textHeight) {
    const CGFloat width =
        imageView_ ? kTextBesidePicture : asView(*this).bounds().size.width - 2 * kMargin;
    textView_->setFrame(rect(kMargin, top, width, textHeight));
    labelView_->setFrame(rect(kMargin, top + textHeight, width, kLabelHeight));
    imageView_->setFrame(rect(kPictureX, top, kPictureSide, kPictureSide));
    contentView_->setFrame(asView(*this).bounds());
}

void InCallLCDView::define() {
    sim::defined("InCallLCDView",
                 objc::ClassBuilder<InCallLCDView>("InCallLCDView", "TPLCDView")
                     .method("layoutSubviews"_sel, objc::member<&InCallLCDView::layoutSubviews>)
                     .finish());
}

void InCallLCDView::layoutSubviews() { placeLines(12, 42); }

void InCallLCDField::define() {
    sim::defined("InCallLCDField",
                 objc::ClassBuilder<InCallLCDField>("InCallLCDField", "TPLCDView")
                     .method("initWithFrame:"_sel, objc::member<&InCallLCDField::initWithFrame>)
                     .method("layoutSubviews"_sel, objc::member<&InCallLCDField::layoutSubviews>)
                     .finish());
}

id InCallLCDField::initWithFrame(CGRect frame) {
    objc::sendSuper<InCallLCDField, id(CGRect)>(this, "initWithFrame:"_sel, frame);
    useContentView();
    return *this;
}

void InCallLCDField::layoutSubviews() { placeLines(16, 38); }

}  // namespace phone
