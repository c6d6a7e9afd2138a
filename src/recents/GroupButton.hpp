// ZQGroupButton: one button of a row whose outer corners are rounded as a whole.
#pragma once

#include "objc/ClassBuilder.hpp"
#include "platform/UIKit.hpp"
#include "recents/Geometry.hpp"

class GroupButton : public objc::Instance {
  public:
    static objc::ClassBuilder<GroupButton> define();

    /// To be called once the button has its frame. Each call adds an icon; a nil one is an empty
    /// view.
    void setIcon(UIImage icon, NSString title) const;
    /// What is no part of a row is all of it.
    void setBackgroundImage(recents::RowPart part) const;
};

/// The same from outside; nil takes no notice.
class ZQGroupButton : public UIButton {
  public:
    using UIButton::UIButton;
    static Class classObject() { return "ZQGroupButton"_cls; }

    void setIcon(UIImage icon, NSString title) const {
        send<void(UIImage, NSString)>("setIcon:title:"_sel, icon, title);
    }
    void setBackgroundImage(recents::RowPart part) const {
        send<void(NSInteger)>("setBackgroundImageWithButtonIndex:"_sel,
                              static_cast<NSInteger>(part));
    }
};
