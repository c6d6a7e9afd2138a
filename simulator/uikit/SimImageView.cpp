// UIImageView.
#include "uikit/SimImageView.hpp"

#include "uikit/Foundation.hpp"
#include "uikit/GraphicsContext.hpp"
#include "uikit/Registration.hpp"
#include "uikit/SimColor.hpp"
#include "uikit/SimImage.hpp"

using objc::Owned;
using sim::instance;

id SimImageView::initWithFrame(CGRect frame) {
    objc::sendSuper<SimImageView, id(CGRect)>(this, "initWithFrame:"_sel, frame);
    setUserInteractionEnabled(false);
    return *this;
}

id SimImageView::initWithImage(UIImage image) {
    const CGSize size = objc::send<CGSize()>(image, "size"_sel);
    objc::send<id(CGRect)>(id(*this), "initWithFrame:"_sel, CGRect{{0, 0}, size});
    setImage(image);
    return *this;
}

void SimImageView::setImage(UIImage image) {
    image_ = Owned<UIImage>::share(image);
    hasChanged();
}

void SimImageView::setHighlightedImage(UIImage image) {
    highlightedImage_ = Owned<UIImage>::share(image);
    hasChanged();
}

SimImage *SimImageView::shown() const {
    const bool other = highlighted_ && highlightedImage_;
    return instance<SimImage>(other ? highlightedImage_.get() : image_.get());
}

CGSize SimImageView::sizeThatFits(CGSize) const {
    return image_ ? instance<SimImage>(image_.get())->size() : bounds().size;
}

CGSize SimImageView::intrinsicContentSize() const {
    return image_ ? instance<SimImage>(image_.get())->size() : CGSize{-1, -1};
}

void SimImageView::drawRect(CGRect) {
    SimImage *const image = shown();
    auto *const context = sim::GraphicsContext::current();
    if (image == nullptr || context == nullptr) {
        return;
    }
    constexpr NSInteger kTemplate = 2;
    const auto &picture = image->picture();
    const CGRect place = sim::placed(image->size(), bounds(), contentMode());
    if (picture && image->renderingMode() == kTemplate) {
        context->canvas.drawTemplate(
            *picture, place, SimColor::of(objc::send<UIColor()>(id(*this), "tintColor"_sel)));
    } else {
        image->drawInRect(place);
    }
}

void SimImageView::define() {
    using objc::member;
    sim::defined(
        "UIImageView",
        objc::ClassBuilder<SimImageView>("UIImageView", "UIView")
            .method("initWithFrame:"_sel, member<&SimImageView::initWithFrame>)
            .method("initWithImage:"_sel, member<&SimImageView::initWithImage>)
            .method("image"_sel, member<&SimImageView::image>)
            .method("setImage:"_sel, member<&SimImageView::setImage>)
            .method("highlightedImage"_sel, member<&SimImageView::highlightedImage>)
            .method("setHighlightedImage:"_sel, member<&SimImageView::setHighlightedImage>)
            .method("isHighlighted"_sel, member<&SimImageView::isHighlighted>)
            .method("setHighlighted:"_sel, member<&SimImageView::setHighlighted>)
            .method("sizeThatFits:"_sel, member<&SimImageView::sizeThatFits>)
            .method("intrinsicContentSize"_sel, member<&SimImageView::intrinsicContentSize>)
            .method("drawRect:"_sel, member<&SimImageView::drawRect>)
            .finish());
}
