// The head of a contact's detail view: the name with a tag line below it, and at the bottom what
// the detail was opened for.
#pragma once

#include "phone/Parts.hpp"
#include "uikit/SimView.hpp"

namespace phone {

class ABContactHeaderView : public SimView {
  public:
    /// Which of the two classes knows the labels: the second from iOS 8 on.
    enum class Labels { InTheHeader, InTheDisplay };
    static void define(Labels labels);

    id initWithFrame(CGRect frame);
    /// `contact` is a CNContact.
    void setContact(NSObject contact);
    NSObject contact() const { return contact_; }
    /// As high as it is now; nil for none.
    void setPersonHeaderView(UIView view);
    /// Points: the name's room and the person header below it.
    CGFloat height() const;
    bool isEditing() const { return editing_; }
    void setEditing(bool editing) { editing_ = editing; }

    UILabel nameLabel() const { return nameLabel_; }
    UILabel taglineLabel() const { return taglineLabel_; }
    UIView personHeaderView() const { return personHeaderView_; }

  private:
    CGFloat nameRoom() const;
    void placeParts();

    objc::Owned<UILabel> nameLabel_;
    objc::Owned<UILabel> taglineLabel_;
    objc::Owned<UIView> personHeaderView_;
    objc::Owned<NSObject> contact_;
    bool editing_ = false;
};

/// The head as it is while the contact is not edited: it knows where its tag line comes from.
class ABContactHeaderDisplayView : public ABContactHeaderView {
  public:
    static void define(Labels labels);

    id initWithFrame(CGRect frame);
    /// What the contact itself says, or nil.
    NSString taglineStringForContact(NSObject contact) const;

  private:
    objc::Owned<UILabel> shownNameLabel_;
    objc::Owned<UILabel> shownTaglineLabel_;
};

}  // namespace phone
