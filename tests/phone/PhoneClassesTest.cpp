// What add-ons find in this Phone application by name: classes with methods of their own, and
// instance variables.
#include <cstdlib>
#include <memory>
#include <span>

#include <gtest/gtest.h>

#include "objc/ivar.hpp"
#include "phone/Classes.hpp"
#include "phone/contact/ABContactViewController.hpp"
#include "phone/incall/InCallController.hpp"
#include "phone/incall/TPLCDView.hpp"
#include "phone/incall/TUTelephonyCall.hpp"
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

objc::Owned<NSObject> newCall(bool outgoing) {
    const id memory = objc::send<id()>(objc::classOf<phone::TUTelephonyCall>(), "alloc"_sel);
    const auto yesOrNo =
        objc::send<NSObject(bool)>("NSNumber"_cls, "numberWithBool:"_sel, outgoing);
    const NSDictionary facts = NSDictionary::withObject(yesOrNo, "outgoing"_ns);
    return objc::Owned<NSObject>::adopt(
        objc::send<NSObject(NSObject)>(memory, "initWithCall:"_sel, facts));
}

TEST(InCallController, CountsLiveCalls) {
    const objc::AutoreleasePool pool;
    const auto controller =
        objc::Owned<NSObject>::adopt(NSObject(*objc::make<phone::InCallController>()));
    const auto count = [&] { return objc::read<int>(controller.get(), "_currentCallCount"_ivar); };
    const auto first = newCall(true);
    const auto second = newCall(false);
    EXPECT_EQ(objc::send<int32_t()>(first.get(), "status"_sel), 3) << "outgoing calls dial";
    EXPECT_EQ(objc::send<int32_t()>(second.get(), "status"_sel), 4) << "incoming calls ring";
    EXPECT_EQ(objc::send<int32_t()>(second.get(), "abUID"_sel), -1) << "nobody's unless told";
    const auto setStatus = [](NSObject call, int32_t status) {
        objc::send<void(int32_t)>(call, "setStatus:"_sel, status);
    };
    setStatus(first, 1);
    setStatus(first, 2);
    EXPECT_EQ(count(), 1);
    setStatus(second, 1);
    EXPECT_EQ(count(), 2);
    setStatus(first, 5);
    setStatus(first, 5);
    EXPECT_EQ(count(), 1);
}

TEST(InCallDisplay, GivesThePictureRoom) {
    const objc::AutoreleasePool pool;
    const auto display = phone::makeView<phone::InCallLCDView>(rect(0, 0, 320, 96));
    const auto textWidth = [&] {
        objc::send<void()>(display.get(), "layoutIfNeeded"_sel);
        return objc::read<UIView>(display.get(), "_textView"_ivar).frame().size.width;
    };
    EXPECT_EQ(textWidth(), 280);
    const auto picture = objc::create<UIImage>();
    objc::send<void(UIImage)>(display.get(), "setImage:"_sel, picture);
    EXPECT_EQ(textWidth(), 190);
    objc::send<void(UIImage)>(display.get(), "setImage:"_sel, UIImage());
    EXPECT_EQ(textWidth(), 280);
}

}  // namespace
