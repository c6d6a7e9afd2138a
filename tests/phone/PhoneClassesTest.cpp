// What add-ons find in this Phone application by name: classes with methods of their own, and
// instance variables.
#include <cstdlib>
#include <memory>
#include <span>

#include <gtest/gtest.h>

#include "phone/Classes.hpp"
#include "phone/contact/ABContactViewController.hpp"
#include "substrate/RuntimeMethods.hpp"

namespace {

bool definesItself(Class cls, const std::string &selector) {
    unsigned count = 0;
    const std::unique_ptr<Method[], decltype(&std::free)> methods(class_copyMethodList(cls, &count),
                                                                  &std::free);
    for (const Method method : std::span(methods.get(), count)) {
        if (sel_getName(method_getName(method)) == selector) {
            return true;
        }
    }
    return false;
}

TEST(PhoneClasses, OwnTheMethodsThatAddOnsReplace) {
    const struct {
        const char *className;
        const char *selector;
    } rows[] = {
        {"DialerController", "viewWillAppear:"},
        {"DialerController", "viewWillDisappear:"},
        {"DialerController", "newPersonViewController:didCompleteWithNewPerson:"},
        {"PHHandsetDialerLCDView", "setName:numberLabel:"},
        {"PHHandsetDialerLCDView", "touchesBegan:withEvent:"},
        {"PHHandsetDialerLCDView", "touchesCancelled:withEvent:"},
        {"TUTelephonyCall", "initWithCall:"},
        {"TUTelephonyCall", "dealloc"},
        {"InCallLCDField", "layoutSubviews"},
        {"InCallLCDView", "layoutSubviews"},
        {"InCallController", "_callStatusChangedNotification:"},
        {"TPLCDTextView", "setCenterText:"},
        {"TPLCDTextView", "setLCDTextFont:"},
        {"TPWallpaperView", "setContactImage:animated:"},
        {"PHRecentsViewController", "viewWillAppear:"},
        {"PHRecentsViewController", "showCallDetail:animate:"},
        {"PHRecentsViewController", "setEditing:animated:"},
        {"PHRecentsCell", "layoutSubviews"},
        {"PHRecentsCell", "setEditing:animated:"},
        {"PHRecentsCell", "scrollViewWillEndDragging:withVelocity:targetContentOffset:"},
        {"PhoneViewController", "viewWillAppear:"},
        {"ABContactViewController", "tableView:heightForHeaderInSection:"},
        {"ABContactViewController", "tableView:viewForHeaderInSection:"},
        {"ABContactHeaderView", "layoutSubviews"},
        {"ABContactHeaderDisplayView", "_taglineStringForContact:"},
    };
    for (const auto &[className, selector] : rows) {
        const Class cls = objc::findClass(className);
        ASSERT_TRUE(cls) << className;
        EXPECT_TRUE(definesItself(cls, selector)) << className << ' ' << selector;
    }
}

TEST(PhoneClasses, HaveTheInstanceVariablesThatAddOnsRead) {
    const struct {
        const char *className;
        const char *variable;
    } rows[] = {
        {"InCallController", "_currentCallCount"}, {"InCallLCDView", "_textView"},
        {"InCallLCDView", "_labelView"},           {"InCallLCDView", "_imageView"},
        {"InCallLCDField", "_contentView"},        {"TPLCDLabelView", "_text"},
        {"TPLCDLabelView", "_fontSize"},           {"PHRecentsViewController", "_table"},
        {"PHRecentsCell", "_callerLabelLabel"},    {"PHRecentsCell", "_callerDateLabel"},
        {"ABContactHeaderView", "_taglineLabel"},  {"ABContactHeaderView", "_personHeaderView"},
        {"ABContactHeaderView", "_nameLabel"},     {"ABContactHeaderView", "_contact"},
        {"ABContactViewController", "_contact"},
    };
    for (const auto &[className, variable] : rows) {
        EXPECT_TRUE(class_getInstanceVariable(objc::findClass(className), variable))
            << className << ' ' << variable;
    }
}

TEST(PhoneClasses, CanBeTakenOutOfSight) {
    EXPECT_TRUE(objc::findClass("TPWallpaperView"));
    EXPECT_TRUE(phone::forgetClass("TPWallpaperView"));
    EXPECT_FALSE(objc::findClass("TPWallpaperView"));
    EXPECT_FALSE(phone::forgetClass("TPWallpaperView"));
    EXPECT_TRUE(objc::findClass("TPLCDTextView")) << "others stay";
}

}  // namespace
