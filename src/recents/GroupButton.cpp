// The buttons of the detail header.
#include "recents/GroupButton.hpp"

#include "companion/Utilities.hpp"
#include "platform/Format.hpp"

using recents::RowPart;

namespace {

struct Background {
    NSString name;
    UIEdgeInsets caps{};
};

Background backgroundOf(RowPart part) {
    switch (part) {
    case RowPart::Left:
        return {"left_"_ns, {4, 5, 4, 0}};
    case RowPart::Middle:
        return {"middle_"_ns, {0, 0, 0, 0}};
    case RowPart::Right:
        return {"right_"_ns, {4, 0, 4, 5}};
    default:
        return {""_ns, {4, 4, 4, 4}};
    }
}

}  // namespace

objc::ClassBuilder<GroupButton> GroupButton::define() {
    using objc::member;
    return objc::ClassBuilder<GroupButton>("ZQGroupButton", "UIButton")
        .method("setIcon:title:"_sel, member<&GroupButton::setIcon>)
        .method("setBackgroundImageWithButtonIndex:"_sel, member<&GroupButton::setBackgroundImage>);
}

void GroupButton::setIcon(UIImage icon, NSString title) const {
    const UIButton button(*this);
    const auto view =
        withFrame<UIImageView>(recents::buttonIcon(button.frame().size, title.length()));
    view->setImage(icon);
    view->setBackgroundColor(UIColor::clearColor());
    button.addSubview(view);

    button.setTitle(title, kNormalState);
    const UIColor grey = ZQUIUtil::getFormattedColor(145, 145, 145, 1);
    button.setTitleColor(grey, kNormalState);
    button.setTitleColor(grey, kHighlightedState);
    button.titleLabel().setFont(UIFont::systemFontOfSize(13));
    button.setTitleEdgeInsets({0, 20, 0, 0});
}

void GroupButton::setBackgroundImage(RowPart part) const {
    const auto [name, caps] = backgroundOf(part);
    const auto set = [&](NSString fileName, NSUInteger state) {
        objc::sendSuper<GroupButton, void(UIImage, NSUInteger)>(
            this, "setBackgroundImage:forState:"_sel, resourceImage(fileName).resizable(caps),
            state);
    };
    set(format<"btn_%@in_systemCallHistoryDetailsView.png">(name), kNormalState);
    set(format<"btn_%@pressed_in_systemCallHistoryDetailsView.png">(name), kHighlightedState);
}
