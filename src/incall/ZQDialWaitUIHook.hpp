// The in-call screen's hook object: it knows which call the screen is about and what is known of
// the caller, and offers what the screen does to other code in the process. Texts are in
// description, numbers in geometry, views in lcd_view, lcd_field, contact_region and pictures.
#pragma once

#include <cstdint>

#include "incall/CallSlots.hpp"
#include "incall/Caller.hpp"
#include "incall/Description.hpp"
#include "objc/ClassBuilder.hpp"

class ZQDialWaitUIHook : public objc::Instance {
  public:
    /// The class, all but its install method, which the hook table adds before it is finished.
    static objc::ClassBuilder<ZQDialWaitUIHook> define();

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
    NSString getNumberRegion() const;
    /// Nil for nil. Also takes note of the logo that goes with the text, and starts its download
    /// when it is missing.
    NSString getNumberInfo(NSString number) { return learn(number).autorelease(); }
    bool isBrandNumber() const { return static_cast<bool>(_brandLogoName); }
    void hasSystemBigAvatar(bool shown) { _hasSystemBigAvatar = shown; }
    /// The logo shows at the next layout pass.
    void handlePartnerLogoDownloadNotification(NSNotification notification);

    // The steps of a layout pass.

    /// Whether the container had to be made.
    bool addBrandLogo(UIView view) const;
    void showBrandLogoOnView(UIView container) const;
    /// Whether a contact's picture is shown, the Phone application's own or the companion's.
    bool addAvatarView(InCallDisplay display) const;
    /// Whether there is a description to show.
    bool addDescriptionLabel(InCallLCDView lcd);
    void layoutSubviewOfLCDView(InCallLCDView lcd, bool withAvatar, bool withNumDesc) const;
    void layoutContactRegionInfoOfView(InCallDisplay display) const;
    /// Whether the field carries the description.
    bool addNumInfoToLCDField(InCallLCDField field);
    void layoutSubviewsOfLCDField(InCallLCDField field) const;

  private:
    enum BlackListState : int32_t { kNotAsked = 0, kBlackListed = 1, kNotBlackListed = 2 };

    incall::Caller caller() const;
    objc::Owned<NSString> learn(NSString number);

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
