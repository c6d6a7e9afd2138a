// UIButton: its title and icon are subviews that the layout keeps in step with the state.
#include "uikit/SimButton.hpp"

#include <algorithm>

#include "uikit/Foundation.hpp"
#include "uikit/GraphicsContext.hpp"
#include "uikit/Registration.hpp"
#include "uikit/SimColor.hpp"
#include "uikit/SimFont.hpp"
#include "uikit/SimImage.hpp"
#include "uikit/SimImageView.hpp"
#include "uikit/SimLabel.hpp"

using objc::Owned;
using sim::instance;

namespace {

constexpr CGFloat kTitlePoints = 18;

CGRect centred(CGSize size, CGRect room) {
    return {{room.origin.x + (room.size.width - size.width) / 2,
             room.origin.y + (room.size.height - size.height) / 2},
            size};
}

}  // namespace

template <class T>
T SimButton::PerState<T>::at(NSUInteger state) const {
    const auto found = objects_.find(state);
    const auto normal = objects_.find(kStateNormal);
    if (found != objects_.end()) {
        return found->second;
    }
    return normal != objects_.end() ? normal->second.get() : T();
}

template <class T>
void SimButton::PerState<T>::set(Owned<T> object, NSUInteger state) {
    if (object) {
        objects_[state] = std::move(object);
    } else {
        objects_.erase(state);
    }
}

id SimButton::withType(Class cls, NSInteger type) {
    const auto button =
        Owned<UIView>::adopt(objc::send<UIView()>(objc::send<id()>(cls, "alloc"_sel), "init"_sel));
    instance<SimButton>(button.get())->type_ = type;
    objc::send<id()>(button.get(), "retain"_sel);
    return objc::send<id()>(button.get(), "autorelease"_sel);
}

NSString SimButton::titleForState(NSUInteger state) const { return titles_.at(state); }

void SimButton::setTitle(NSString title, NSUInteger state) {
    titles_.set(sim::copied(title), state);
    partsHaveChanged();
}

UIColor SimButton::titleColorForState(NSUInteger state) const {
    constexpr NSInteger kCustom = 0;
    if (const UIColor color = titleColors_.at(state)) {
        return color;
    }
    return type_ == kCustom ? SimColor::make(sim::kWhite)
                            : objc::send<UIColor()>(id(*this), "tintColor"_sel);
}

void SimButton::setTitleColor(UIColor color, NSUInteger state) {
    titleColors_.set(Owned<UIColor>::share(color), state);
    partsHaveChanged();
}

UIImage SimButton::imageForState(NSUInteger state) const { return images_.at(state); }

void SimButton::setImage(UIImage image, NSUInteger state) {
    images_.set(Owned<UIImage>::share(image), state);
    partsHaveChanged();
}

UIImage SimButton::backgroundImageForState(NSUInteger state) const {
    return backgrounds_.at(state);
}

void SimButton::setBackgroundImage(UIImage image, NSUInteger state) {
    backgrounds_.set(Owned<UIImage>::share(image), state);
    hasChanged();
}

SimLabel *SimButton::titleLabel() {
    if (!titleLabel_) {
        titleLabel_ = withFrame<UILabel>({});
        auto *const label = instance<SimLabel>(titleLabel_.get());
        label->setFont(SimFont::systemFontOfSize(kTitlePoints));
        label->setLineBreakMode(sim::LineBreak::TruncateMiddle);
        addSubview(label);
    }
    return instance<SimLabel>(titleLabel_.get());
}

SimImageView *SimButton::imageView() {
    if (!imageView_) {
        imageView_ = withFrame<UIImageView>({});
        addSubview(instance<SimImageView>(imageView_.get()));
    }
    return instance<SimImageView>(imageView_.get());
}

void SimButton::setInsets(UIEdgeInsets &insets, UIEdgeInsets value) {
    insets = value;
    hasChanged();
    setNeedsLayout();
}

/// Parts that were never needed are not made; those that are there show the state's.
void SimButton::updateParts() {
    if (titleLabel_ || currentTitle() != nullptr) {
        objc::send<void(NSString)>(id(*titleLabel()), "setText:"_sel, currentTitle());
        objc::send<void(UIColor)>(id(*titleLabel()), "setTextColor:"_sel, currentTitleColor());
    }
    if (imageView_ || currentImage() != nullptr) {
        objc::send<void(UIImage)>(id(*imageView()), "setImage:"_sel, currentImage());
    }
}

void SimButton::partsHaveChanged() {
    hasChanged();
    updateParts();
    setNeedsLayout();
}

CGSize SimButton::titleSize() const {
    return titleLabel_ ? instance<SimLabel>(titleLabel_.get())->sizeThatFits({0, 0}) : CGSize{};
}

CGSize SimButton::imageSize() const {
    const UIImage image = currentImage();
    return image != nullptr ? instance<SimImage>(image)->size() : CGSize{};
}

CGRect SimButton::contentRectForBounds(CGRect bounds) const {
    return sim::inset(bounds, contentEdgeInsets_);
}

/// Icon and title stand side by side, centred together; each is then moved by its own insets.
CGRect SimButton::titleRectForContentRect(CGRect content) const {
    const CGRect room = sim::inset(content, titleEdgeInsets_);
    const CGSize wanted = titleSize();
    const CGFloat icon = imageSize().width;
    const CGSize size{std::min(wanted.width, std::max(0.0, room.size.width - icon)),
                      std::min(wanted.height, room.size.height)};
    CGRect title = centred({size.width + icon, size.height}, room);
    title.origin.x += icon;
    title.size = size;
    return title;
}

CGRect SimButton::imageRectForContentRect(CGRect content) const {
    const CGRect room = sim::inset(content, imageEdgeInsets_);
    const CGSize wanted = imageSize();
    const CGSize size{std::min(wanted.width, room.size.width),
                      std::min(wanted.height, room.size.height)};
    const CGFloat title = std::min(titleSize().width, std::max(0.0, room.size.width - size.width));
    CGRect image = centred({size.width + title, size.height}, room);
    image.size = size;
    return image;
}

CGSize SimButton::intrinsicContentSize() const {
    const CGSize title = titleSize();
    const CGSize image = imageSize();
    constexpr CGFloat kVerticalMargins = 12;  // a button is a little higher than its title
    return {title.width + image.width + contentEdgeInsets_.left + contentEdgeInsets_.right,
            std::max(title.height + kVerticalMargins, image.height) + contentEdgeInsets_.top +
                contentEdgeInsets_.bottom};
}

CGSize SimButton::sizeThatFits(CGSize) const { return intrinsicContentSize(); }

void SimButton::layoutSubviews() {
    updateParts();
    const auto content =
        objc::send<CGRect(CGRect)>(id(*this), "contentRectForBounds:"_sel, bounds());
    if (titleLabel_) {
        titleLabel_->setFrame(
            objc::send<CGRect(CGRect)>(id(*this), "titleRectForContentRect:"_sel, content));
    }
    if (imageView_) {
        imageView_->setFrame(
            objc::send<CGRect(CGRect)>(id(*this), "imageRectForContentRect:"_sel, content));
    }
}

void SimButton::drawRect(CGRect) {
    if (auto *const background = instance<SimImage>(currentBackgroundImage())) {
        background->drawInRect(bounds());
    }
}

void SimButton::define() {
    using objc::member;
    using B = SimButton;
    sim::defined("UIButton",
                 objc::ClassBuilder<B>("UIButton", "UIControl")
                     .classMethod("buttonWithType:"_sel, objc::receiving<&B::withType>)
                     .method("buttonType"_sel, member<&B::buttonType>)
                     .method("titleForState:"_sel, member<&B::titleForState>)
                     .method("setTitle:forState:"_sel, member<&B::setTitle>)
                     .method("titleColorForState:"_sel, member<&B::titleColorForState>)
                     .method("setTitleColor:forState:"_sel, member<&B::setTitleColor>)
                     .method("imageForState:"_sel, member<&B::imageForState>)
                     .method("setImage:forState:"_sel, member<&B::setImage>)
                     .method("backgroundImageForState:"_sel, member<&B::backgroundImageForState>)
                     .method("setBackgroundImage:forState:"_sel, member<&B::setBackgroundImage>)
                     .method("currentTitle"_sel, member<&B::currentTitle>)
                     .method("currentTitleColor"_sel, member<&B::currentTitleColor>)
                     .method("currentImage"_sel, member<&B::currentImage>)
                     .method("currentBackgroundImage"_sel, member<&B::currentBackgroundImage>)
                     .method("titleLabel"_sel, member<&B::titleLabel>)
                     .method("imageView"_sel, member<&B::imageView>)
                     .method("contentEdgeInsets"_sel, member<&B::contentEdgeInsets>)
                     .method("setContentEdgeInsets:"_sel, member<&B::setContentEdgeInsets>)
                     .method("titleEdgeInsets"_sel, member<&B::titleEdgeInsets>)
                     .method("setTitleEdgeInsets:"_sel, member<&B::setTitleEdgeInsets>)
                     .method("imageEdgeInsets"_sel, member<&B::imageEdgeInsets>)
                     .method("setImageEdgeInsets:"_sel, member<&B::setImageEdgeInsets>)
                     .method("contentRectForBounds:"_sel, member<&B::contentRectForBounds>)
                     .method("titleRectForContentRect:"_sel, member<&B::titleRectForContentRect>)
                     .method("imageRectForContentRect:"_sel, member<&B::imageRectForContentRect>)
                     .method("sizeThatFits:"_sel, member<&B::sizeThatFits>)
                     .method("intrinsicContentSize"_sel, member<&B::intrinsicContentSize>)
                     .method("layoutSubviews"_sel, member<&B::layoutSubviews>)
                     .method("drawRect:"_sel, member<&B::drawRect>)
                     .finish());
}
