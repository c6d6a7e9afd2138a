// The in-call screen: calls begin, are answered, held, merged and ended here, and it shows how they
// stand. What became of a call it hears from the telephony layer's notification.
#pragma once

#include <functional>
#include <optional>
#include <utility>

#include "phone/incall/CallClock.hpp"
#include "phone/incall/CallList.hpp"
#include "phone/incall/DisplayContent.hpp"
#include "phone/incall/InCallView.hpp"
#include "uikit/SimViewController.hpp"

namespace phone {

/// Calls are counted from 1, in the order in which they began. What is not possible now returns
/// false and changes nothing. Nobody but the controller retains a call: it is gone as soon as it
/// has ended.
class InCallController : public SimViewController {
  public:
    static void define();

    /// The screen with one of the two displays (see usualDisplay()). Calls run on the simulated
    /// time.
    static objc::Owned<NSObject> create(Display display);

    id init();
    ~InCallController();

    /// `number` as it was dialled or as the network gives it; a caller who hides has an empty one.
    /// The call that is talked on is held while another one is dialled.
    void beginOutgoing(NSString number) { calls_.begin(number, true); }
    void beginIncoming(NSString number) { calls_.begin(number, false); }
    /// The ringing call, or else the one being dialled, is talked on from now; the one that was
    /// until now is held.
    bool answer() { return calls_.answer(); }
    /// The call that is talked on and the one held last change places.
    bool swap() { return calls_.swap(); }
    bool canSwap() const { return calls_.canSwap(); }
    /// Joins the held calls with the one that is talked on.
    bool merge() { return calls_.merge(); }
    /// Ends one call. When nobody is left to talk to, the call held last is talked on again. After
    /// the last one the screen says that the call has ended, until the next one begins or the
    /// screen disappears.
    bool end(size_t number) { return calls_.end(number); }

    size_t callCount() const { return calls_.count(); }
    /// Null when there is no such call.
    TUTelephonyCall *call(size_t number) const { return calls_.object(number); }

    /// Called some time after the last call has ended, unless another one has begun; whoever shows
    /// the screen may take it away then. Without it the screen stays.
    void setWhenOver(std::function<void()> leave) { leave_ = std::move(leave); }

    /// Brings the running time up to date, as every second of a call does by itself.
    void tick();

    InCallView *inCallView();
    /// The InCallLCDView or InCallLCDField. What it says are the texts of the visible views in it
    /// that have a `text`, in their order.
    UIView displayView() { return inCallView()->display(); }
    /// The TPWallpaperView.
    UIView wallpaperView() { return inCallView()->wallpaper(); }

    void loadView();
    void viewDidDisappear(bool animated);
    void callStatusChanged(NSNotification notification);

    // What the buttons do.
    void endPressed(NSObject sender);
    void answerPressed(NSObject sender);
    void swapPressed(NSObject sender);
    void mergePressed(NSObject sender);
    void togglePressed(NSObject button);
    /// The end of the last call has been shown for long enough.
    void leaveIfOver();

  private:
    DisplayContent content() const;
    InCallKeys keys() const;
    void showCalls();

    CallList calls_;
    unsigned currentCallCount_ = 0;
    Display display_ = Display::View;
    std::optional<DisplayContent> ended_;
    CallClock clock_;
    std::function<void()> leave_;
};

}  // namespace phone
