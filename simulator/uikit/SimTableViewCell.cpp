// UITableViewCell's parts and look; what a swipe does to it is in SimTableViewCellSwipe.cpp.
#include "uikit/SimTableViewCell.hpp"

#include "uikit/Device.hpp"
#include "uikit/Foundation.hpp"
#include "uikit/GraphicsContext.hpp"
#include "uikit/Registration.hpp"
#include "uikit/SimColor.hpp"
#include "uikit/SimEditControl.hpp"
#include "uikit/SimFont.hpp"
#include "uikit/SimImage.hpp"
#include "uikit/SimImageView.hpp"
#include "uikit/SimLabel.hpp"
#include "uikit/SimTableView.hpp"
#include "uikit/SimTableViewCellScrollView.hpp"

using objc::Owned;
using sim::handle;
using sim::instance;

namespace {

constexpr CGFloat kMargin = 15;
constexpr CGFloat kTextPoints = 17;
constexpr CGFloat kDetailPoints = 12;
constexpr NSInteger kValueAtTheRight = 1;
constexpr NSInteger kSubtitle = 3;
constexpr CGFloat kEditRoom = 38;  // points that the content makes way while its table is edited
constexpr NSInteger kNoSelection = 0;
constexpr CGFloat kThickness = 0.5;  // of the line below
constexpr sim::Color kSeparator{200 / 255.0, 199 / 255.0, 204 / 255.0, 1};
constexpr sim::Color kTouched{217 / 255.0, 217 / 255.0, 217 / 255.0, 1};

}  // namespace

SimTableViewCell::~SimTableViewCell() {
    if (scrollView_) {
        scrollView()->setDelegate(nullptr);
    }
}

id SimTableViewCell::initWithFrame(CGRect frame) {
    objc::sendSuper<SimTableViewCell, id(CGRect)>(this, "initWithFrame:"_sel, frame);
    contentView_ = withFrame<UIView>(bounds());
    if (sim::Device::current().isAtLeast(8, 0)) {
        addSubview(contentView());
        return *this;
    }
    scrollView_ = objc::make<SimTableViewCellScrollView>().as<UIView>();
    scrollView()->setDelegate(handle<NSObject>(this));
    scrollView()->addSubview(contentView());
    addSubview(scrollView());
    return *this;
}

id SimTableViewCell::initWithStyle(NSInteger style, NSString reuseIdentifier) {
    objc::send<id(CGRect)>(id(*this), "initWithFrame:"_sel, rect(0, 0, 320, 44));
    style_ = style;
    reuseIdentifier_ = sim::copied(reuseIdentifier);
    return *this;
}

SimView *SimTableViewCell::contentView() { return instance<SimView>(contentView_.get()); }

SimScrollView *SimTableViewCell::scrollView() { return instance<SimScrollView>(scrollView_.get()); }

SimLabel *SimTableViewCell::label(Owned<UILabel> &slot, CGFloat points) {
    if (!slot) {
        slot = withFrame<UILabel>({});
        slot->setFont(SimFont::systemFontOfSize(points));
        handle<UIView>(contentView()).addSubview(slot);
    }
    return instance<SimLabel>(slot.get());
}

SimLabel *SimTableViewCell::textLabel() { return label(textLabel_, kTextPoints); }

SimLabel *SimTableViewCell::detailTextLabel() {
    return style_ == 0 ? nullptr : label(detailTextLabel_, kDetailPoints);
}

SimImageView *SimTableViewCell::imageView() {
    if (!imageView_) {
        imageView_ = withFrame<UIImageView>({});
        handle<UIView>(contentView()).addSubview(imageView_);
    }
    return instance<SimImageView>(imageView_.get());
}

void SimTableViewCell::setEditing(bool editing) {
    objc::send<void(bool, bool)>(id(*this), "setEditing:animated:"_sel, editing, false);
}

void SimTableViewCell::setEditingAnimated(bool editing, bool) {
    editing_ = editing;
    setNeedsLayout();
}

void SimTableViewCell::layoutSubviews() {
    objc::sendSuper<SimTableViewCell, void()>(this, "layoutSubviews"_sel);
    const CGRect whole{{0, 0}, bounds().size};
    if (scrollView_) {
        scrollView_->setFrame(whole);
        scrollView()->setContentSize(whole.size);
    }
    const bool editedWithTable = editing_ && !isSwiped();
    const CGFloat room = editedWithTable ? kEditRoom : 0;
    showEditControl(editedWithTable);
    const CGRect content = rect(room, 0, whole.size.width - room, whole.size.height);
    contentView_->setFrame(content);
    placeParts(content.size);
}

void SimTableViewCell::showEditControl(bool shown) {
    if (!shown) {
        editControl_->removeFromSuperview();
        editControl_ = {};
        return;
    }
    if (!editControl_) {
        editControl_ = SimEditControl::make();
        contentView_->superview().addSubview(editControl_);
    }
    editControl_->setFrame(rect(0, 0, kEditRoom, bounds().size.height));
}

SimTableView *SimTableViewCell::table() const {
    const auto parent = handle<UIView>(superview());
    return parent.isKindOfClass("UITableView"_cls) ? instance<SimTableView>(parent) : nullptr;
}

void SimTableViewCell::setSelected(bool selected) {
    objc::send<void(bool, bool)>(id(*this), "setSelected:animated:"_sel, selected, false);
}

void SimTableViewCell::setSelectedAnimated(bool selected, bool) { selected_ = selected; }

void SimTableViewCell::setHighlighted(bool highlighted) {
    objc::send<void(bool, bool)>(id(*this), "setHighlighted:animated:"_sel, highlighted, false);
}

void SimTableViewCell::setHighlightedAnimated(bool highlighted, bool) {
    highlighted_ = highlighted;
}

void SimTableViewCell::drawRect(CGRect) {
    auto *const context = sim::GraphicsContext::current();
    const SimTableView *const owner = table();
    if (owner == nullptr || context == nullptr) {
        return;
    }
    if ((highlighted_ || selected_) && selectionStyle_ != kNoSelection) {
        context->canvas.fill(bounds(), kTouched);
    }
    const UIEdgeInsets inset = owner->separatorInset();
    const CGSize size = bounds().size;
    context->canvas.fill(rect(inset.left, size.height - kThickness,
                              size.width - inset.left - inset.right, kThickness),
                         SimColor::of(owner->separatorColor(), kSeparator));
}

void SimTableViewCell::placeParts(CGSize room) {
    CGFloat x = kMargin;
    if (imageView_) {
        const CGSize size = instance<SimImageView>(imageView_.get())->sizeThatFits({0, 0});
        imageView_->setFrame(rect(x, (room.height - size.height) / 2, size.width, size.height));
        x += size.width > 0 ? size.width + kMargin : 0;
    }
    if (!textLabel_) {
        return;
    }
    const CGFloat width = room.width - x - kMargin;
    const CGFloat text = SimFont::of(textLabel_->font()).lineHeight();
    const CGFloat detail =
        detailTextLabel_ ? SimFont::of(detailTextLabel_->font()).lineHeight() : 0;
    const CGFloat top = (room.height - text - detail) / 2;
    if (style_ == kSubtitle && detailTextLabel_) {
        textLabel_->setFrame(rect(x, top, width, text));
        detailTextLabel_->setFrame(rect(x, top + text, width, detail));
        return;
    }
    textLabel_->setFrame(rect(x, 0, width, room.height));
    if (style_ == kValueAtTheRight && detailTextLabel_) {
        const CGFloat value =
            instance<SimLabel>(detailTextLabel_.get())->sizeThatFits({0, 0}).width;
        detailTextLabel_->setFrame(rect(room.width - kMargin - value, 0, value, room.height));
    }
}

void SimTableViewCell::define() {
    using objc::member;
    using C = SimTableViewCell;
    sim::defined(
        "UITableViewCell",
        objc::ClassBuilder<C>("UITableViewCell", "UIView")
            .method("initWithFrame:"_sel, member<&C::initWithFrame>)
            .method("initWithStyle:reuseIdentifier:"_sel, member<&C::initWithStyle>)
            .method("reuseIdentifier"_sel, member<&C::reuseIdentifier>)
            .method("contentView"_sel, member<&C::contentView>)
            .method("textLabel"_sel, member<&C::textLabel>)
            .method("detailTextLabel"_sel, member<&C::detailTextLabel>)
            .method("imageView"_sel, member<&C::imageView>)
            .method("isEditing"_sel, member<&C::isEditing>)
            .method("setEditing:"_sel, member<&C::setEditing>)
            .method("setEditing:animated:"_sel, member<&C::setEditingAnimated>)
            .method("isSelected"_sel, member<&C::isSelected>)
            .method("setSelected:"_sel, member<&C::setSelected>)
            .method("setSelected:animated:"_sel, member<&C::setSelectedAnimated>)
            .method("isHighlighted"_sel, member<&C::isHighlighted>)
            .method("setHighlighted:"_sel, member<&C::setHighlighted>)
            .method("setHighlighted:animated:"_sel, member<&C::setHighlightedAnimated>)
            .method("accessoryType"_sel, member<&C::accessoryType>)
            .method("setAccessoryType:"_sel, member<&C::setAccessoryType>)
            .method("selectionStyle"_sel, member<&C::selectionStyle>)
            .method("setSelectionStyle:"_sel, member<&C::setSelectionStyle>)
            .method("prepareForReuse"_sel, member<&C::prepareForReuse>)
            .method("layoutSubviews"_sel, member<&C::layoutSubviews>)
            .method("drawRect:"_sel, member<&C::drawRect>)
            .method("deletePressed:"_sel, member<&C::deletePressed>)
            .method("scrollViewWillBeginDragging:"_sel, member<&C::scrollViewWillBeginDragging>)
            .method("scrollViewDidEndDecelerating:"_sel, member<&C::scrollViewDidEndDecelerating>)
            .method("scrollViewWillEndDragging:withVelocity:targetContentOffset:"_sel,
                    member<&C::scrollViewWillEndDragging>)
            .finish());
}
