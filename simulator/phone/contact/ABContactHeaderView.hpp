// The head of a contact's detail view: picture, name and a tag line.
#pragma once

#include "phone/Parts.hpp"
#include "uikit/SimView.hpp"

namespace phone {

/// What the header shows of a contact while it is not edited: where its tag line comes from.
class ABContactHeaderDisplayView : public SimView {
  public:
    static void define();

    /// The company of a contact, or nil.
    NSString taglineStringForContact(NSObject contact) const;
};

class ABContactHeaderView : public SimView {
  public:
    static void define();

    id initWithFrame(CGRect frame);
    /// `contact` answers name, recordID and phoneNumbers.
    void setContact(NSObject contact);
    NSObject contact() const { return contact_; }
    bool isEditing() const { return editing_; }
    void setEditing(bool editing) { editing_ = editing; }
    void layoutSubviews();
    /// Layers lay themselves out with their views here.
    void layoutSublayersOfLayer(NSObject layer);

  private:
    objc::Owned<UILabel> nameLabel_;
    objc::Owned<UILabel> taglineLabel_;
    objc::Owned<UIView> personHeaderView_;
    objc::Owned<NSObject> contact_;
    bool editing_ = false;
};

}  // namespace phone
