// UISegmentedControl, in the system's blue.
#include "uikit/SimSegmentedControl.hpp"

#include "uikit/Foundation.hpp"
#include "uikit/Registration.hpp"
#include "uikit/SimColor.hpp"
#include "uikit/SimFont.hpp"
#include "uikit/SimLabel.hpp"
#include "uikit/SimTouch.hpp"

using sim::instance;

objc::Owned<UIView> SimSegmentedControl::make(CGSize size, const std::vector<NSString> &words) {
    constexpr CGFloat kTextPoints = 13;
    auto made = objc::make<SimSegmentedControl>();
    SimSegmentedControl *const self = made.get();
    self->setFrame({{0, 0}, size});
    self->layer()->setCornerRadius(4);
    self->layer()->setBorderWidth(1);
    self->layer()->setBorderColor(self->tintColor());
    self->layer()->setMasksToBounds(true);
    const CGFloat width = size.width / static_cast<CGFloat>(words.size());
    for (const NSString word : words) {
        const CGFloat x = width * static_cast<CGFloat>(self->labels_.size());
        self->labels_.push_back(
            objc::create<UILabel(CGRect)>("initWithFrame:"_sel, rect(x, 0, width, size.height)));
        auto *const label = instance<SimLabel>(self->labels_.back().get());
        label->setFont(SimFont::systemFontOfSize(kTextPoints));
        label->setTextAlignment(sim::TextAlignment::Center);
        label->setText(word);
        self->addSubview(label);
    }
    self->colourWords();
    return std::move(made).as<UIView>();
}

void SimSegmentedControl::colourWords() const {
    for (std::size_t i = 0; i < labels_.size(); ++i) {
        const bool chosen = static_cast<NSInteger>(i) == selected_;
        const UIColor white = SimColor::make(sim::kWhite);
        labels_[i]->setTextColor(chosen ? white : tintColor());
        labels_[i]->setBackgroundColor(chosen ? tintColor() : UIColor::clearColor());
        instance<SimLabel>(labels_[i].get())
            ->setAccessibilityTraits(kTraitButton | (chosen ? kTraitSelected : 0));
    }
}

void SimSegmentedControl::setSelectedSegmentIndex(NSInteger index) {
    selected_ = index;
    colourWords();
}

void SimSegmentedControl::touchesEnded(NSObject touches, SimEvent *event) {
    objc::sendSuper<SimSegmentedControl, void(NSObject, SimEvent *)>(
        this, "touchesEnded:withEvent:"_sel, touches, event);
    const CGPoint at = event->touch()->locationInView(this);
    const auto index =
        static_cast<NSInteger>(at.x / bounds().size.width * static_cast<CGFloat>(labels_.size()));
    if (isEnabled() && pointInside(at, event) && index != selected_) {
        setSelectedSegmentIndex(index);
        sendActionsForControlEvents(kValueChanged);
    }
}

void SimSegmentedControl::define() {
    using objc::member;
    using S = SimSegmentedControl;
    sim::defined("UISegmentedControl",
                 objc::ClassBuilder<S>("UISegmentedControl", "UIControl")
                     .method("selectedSegmentIndex"_sel, member<&S::selectedSegmentIndex>)
                     .method("setSelectedSegmentIndex:"_sel, member<&S::setSelectedSegmentIndex>)
                     .method("touchesEnded:withEvent:"_sel, member<&S::touchesEnded>)
                     .finish());
}
