// The line under the typed number: whose number it is, or the offer to add it to the contacts.
#pragma once

#include "phone/Parts.hpp"
#include "uikit/SimView.hpp"

namespace phone {

class PHHandsetDialerNameLabelView : public SimView {
  public:
    static void define();

    id initWithFrame(CGRect frame);

    UILabel nameLabel() const { return nameLabel_; }
    UILabel numberLabelLabel() const { return labelLabel_; }
    UILabel addToContactsLabel() const { return addLabel_; }

    /// Shows a contact; nil texts are left out.
    void showContact(NSString name, NSString label);
    /// Shows the offer to add the number, or nothing at all.
    void showOffer(bool offered);
    void setPressed(bool pressed);
    /// Name and label side by side, the pair centred.
    void layoutSubviews();

  private:
    objc::Owned<UILabel> nameLabel_;
    objc::Owned<UILabel> labelLabel_;
    objc::Owned<UILabel> addLabel_;
};

}  // namespace phone
