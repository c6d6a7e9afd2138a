// The in-call screen's hook object: it knows which call the screen is about, what is known of the
// caller, and puts that on the Phone application's displays. Texts are in description, numbers in
// geometry; the views that are added are found again by tag, since the displays own them.
#pragma once

#include <cstdint>

#include "incall/CallSlots.hpp"
#include "incall/description.hpp"
#include "incall/geometry.hpp"
#include "objc/class_builder.hpp"

class ZQDialWaitUIHook : public objc::Instance {
  public:
    /// The class, all but its install method, which the hook table adds before it is finished.
    static objc::ClassBuilder<ZQDialWaitUIHook> define();

    /// The one instance, made by createShared() and never released; null before.
    static ZQDialWaitUIHook *shared();
    /// Whether there was no instance yet and there is one now.
    static bool createShared();

    NSObject init();

    // Calls.

    TUTelephonyCall currentOutCall() const { return _currentCall.current(); }
    /// Takes note of a new call; nil only sweeps out calls that have ended.
    void setCurrentOutCall(TUTelephonyCall call);
    void clearCurrentCall(TUTelephonyCall call) { _currentCall.forget(call); }
    bool moreThanOneCall() const { return _currentCall.moreThanOne(); }
    /// The user wants information shown, and there is a call.
    bool shouldHookUI() const;
    /// The companion is asked once for each call that is taken note of.
    bool isCurrentCallInBlackList();
    bool isCurrentCallInAddresBook() const { return incall::isContact(currentOutCall()); }
    bool isOutgoing() const { return currentOutCall().isOutgoing(); }
    NSString getNumber() const { return currentOutCall().destinationID(); }

    // What is known of the caller.

    void refreshNumberDesc();
    NSString getNumberRegion() const { return incall::regionOf(getNumber()); }
    /// Nil for nil. Also takes note of the logo that goes with the text, and starts its download
    /// when it is missing.
    NSString getNumberInfo(NSString number);
    bool isTypeBrand(ZQNumberIdentity identity) const { return incall::isBrand(identity); }
    bool isBrandNumber() const { return static_cast<bool>(_brandLogoName); }
    /// Nil for a text of one part; the caller owns the result, in spite of the message's name.
    NSAttributedString getAttributedString(NSString text) const;
    void hasSystemBigAvatar(bool shown) { _hasSystemBigAvatar = shown; }
    /// The logo shows at the next layout pass.
    void handlePartnerLogoDownloadNotification(NSNotification notification);

    // Pictures at the right of a display.

    /// Whether the container had to be made.
    bool addBrandLogo(UIView view) const;
    void showBrandLogoOnView(UIView container) const;
    /// Whether a contact's picture is shown, the Phone application's own or the companion's.
    bool addAvatarView(InCallDisplay display) const;

    // The displays.

    /// Whether there is a description to show.
    bool addDescriptionLabel(InCallLCDView lcd);
    void layoutSubviewOfLCDView(InCallLCDView lcd, bool withAvatar, bool withNumDesc) const;
    void layoutContactRegionInfoOfView(InCallDisplay display) const;
    /// Whether the field carries the description.
    bool addNumInfoToLCDField(InCallLCDField field);
    void layoutSubviewsOfLCDField(InCallLCDField field) const;

  private:
    enum BlackListState : int32_t { kNotAsked = 0, kBlackListed = 1, kNotBlackListed = 2 };

    void placeDescription(UIView container, incall::Column column) const;
    void showDescription(UILabel label) const;
    incall::Beside choosePicture(InCallLCDField field, UIView &container) const;

    // Nothing uses it: the call on the screen is the first of the slots.
    TUTelephonyCall _currentOutCall;
    incall::CallSlots _currentCall;
    // The Phone application shows the contact's own large picture.
    bool _hasSystemBigAvatar = false;
    objc::Owned<NSString> _brandLogoName;
    objc::Owned<NSString> _numberDesc;
    bool _brandLogoIsDownloading = false;
    BlackListState _currentCallBlackListState = kNotAsked;
};
