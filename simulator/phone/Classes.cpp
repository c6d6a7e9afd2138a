// Makes all classes known when the library is mapped, superclasses first.
#include "phone/Classes.hpp"

#include "phone/contact/ABContactViewController.hpp"
#include "phone/contact/ABNewPersonViewController.hpp"
#include "phone/contact/CNContact.hpp"
#include "phone/dialer/DialerController.hpp"
#include "phone/dialer/DialerView.hpp"
#include "phone/dialer/PHHandsetDialerLCDView.hpp"
#include "phone/dialer/PHHandsetDialerNameLabelView.hpp"
#include "phone/favourites/PHFavoritesViewController.hpp"
#include "phone/frame/PhoneStatusBar.hpp"
#include "phone/frame/PhoneTabBarController.hpp"
#include "phone/frame/PhoneViewController.hpp"
#include "phone/frame/PlainListController.hpp"
#include "phone/incall/InCallButton.hpp"
#include "phone/incall/InCallController.hpp"
#include "phone/incall/InCallLCDField.hpp"
#include "phone/incall/InCallLCDView.hpp"
#include "phone/incall/TPLCDTextView.hpp"
#include "phone/incall/TPWallpaperView.hpp"
#include "phone/recents/PHCallInfoView.hpp"
#include "phone/recents/PHRecentsCell.hpp"
#include "phone/recents/PHRecentsViewController.hpp"
#include "phone/recents/UIDateLabel.hpp"

namespace phone {
namespace {

void defineHeaders(ABContactHeaderView::Labels labels) {
    ABContactHeaderView::define(labels);
    ABContactHeaderDisplayView::define(labels);
}

__attribute__((constructor)) void defineClasses() {
    const objc::AutoreleasePool pool;
    PhoneStatusBar::define();
    PhoneTabBarButton::define();
    PhoneTabBar::define();
    PhoneNavigationBar::define();
    PhoneTabBarController::define();
    PhoneViewController::define();
    PlainListController::define();

    PHHandsetDialerNameLabelView::define();
    PHHandsetDialerLCDView::define();
    DialerKey::define();
    DialerView::define();
    DialerController::define();

    TUTelephonyCall::define();
    TPLCDTextView::define();
    TPLCDView::define();
    InCallLCDView::define();
    InCallLCDField::define();
    TPWallpaperView::define();
    InCallButton::define();
    InCallView::define();
    CallClock::define();
    InCallController::define();

    UIDateLabel::define();
    PHRecentCall::define();
    PHCallInfoView::define();
    PHRecentsCell::define();
    PHRecentsViewController::define();
    PHFavoritesViewController::define();

    ABContactNumber::define();
    CNContact::define();
    ABContactView::define();
    defineHeaders(ABContactHeaderView::Labels::InTheHeader);
    ABContactViewController::define();
    ABNewPersonViewController::define();
}

}  // namespace

void defineClassesOfIos8() {
    forgetClass("ABContactHeaderDisplayView");
    forgetClass("ABContactHeaderView");
    defineHeaders(ABContactHeaderView::Labels::InTheDisplay);
}

bool forgetClass(const char *name) {
    const Class cls = objc::findClass(name);
    if (!cls) {
        return false;
    }
    // GCC's runtime never takes a class back, but finds it by comparing names, and a class made at
    // run time has a copy of its name that is its own. A name that no source can write hides it.
    *const_cast<char *>(class_getName(cls)) = '-';
    return true;
}

}  // namespace phone
