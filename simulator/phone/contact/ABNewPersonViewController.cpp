// The new person sheet: a title bar and the number that the person is to get.
#include "phone/contact/ABNewPersonViewController.hpp"

#include "uikit/Device.hpp"
#include "uikit/Foundation.hpp"
#include "uikit/Registration.hpp"
#include "uikit/SimControl.hpp"

namespace phone {
namespace {

constexpr CGFloat kBarBottom = 64;
constexpr CGFloat kMargin = 15;
constexpr CGFloat kCancelWidth = 80;

NSArray one(NSString text) {
    const id object = text;
    return sim::array({&object, 1});
}

}  // namespace

void ABNewPersonViewController::define() {
    using objc::member;
    using Self = ABNewPersonViewController;
    sim::defined("ABNewPersonViewController",
                 objc::ClassBuilder<Self>("ABNewPersonViewController", "UIViewController")
                     .method("loadView"_sel, member<&Self::loadView>)
                     .method("saveWithName:"_sel, member<&Self::saveWithName>)
                     .method("cancel"_sel, member<&Self::cancel>)
                     .finish());
}

void ABNewPersonViewController::open(NSObject delegate, NSString number) {
    delegate_ = delegate;
    number_ = sim::copied(number);
}

void ABNewPersonViewController::loadView() {
    const CGSize screen = sim::Device::current().screen;
    const auto view = makeView<SimView>(rect(0, 0, screen.width, screen.height));
    view->setBackgroundColor(color(255, 255, 255));
    const CGFloat width = screen.width - 2 * kMargin;
    const auto addText = [&](NSString text, CGRect frame, CGFloat points,
                             sim::TextAlignment alignment, UIColor textColor) {
        const auto label = makeLabel(frame, points, alignment);
        label->setText(text);
        label->setTextColor(textColor);
        view->addSubview(label);
    };
    const CGRect bar = rect(kMargin, 20, width, kBarBottom - 20);
    const UIColor tint = color(0, 122, 255);
    addText("取消"_ns, bar, 17, sim::TextAlignment::Left, tint);
    addText("新联系人"_ns, bar, 17, sim::TextAlignment::Center, UIColor::blackColor());
    addText("完成"_ns, bar, 17, sim::TextAlignment::Right, tint);
    addText("手机"_ns, rect(kMargin, kBarBottom + 20, 50, 44), 14, sim::TextAlignment::Left, tint);
    addText(number_, rect(kMargin + 60, kBarBottom + 20, width - 60, 44), 17,
            sim::TextAlignment::Left, UIColor::blackColor());
    const auto line = makeView<SimView>(rect(0, kBarBottom, screen.width, 0.5));
    line->setBackgroundColor(color(178, 178, 178));
    view->addSubview(line);
    const auto cancel = makeView<SimControl>(rect(0, 20, kCancelWidth, kBarBottom - 20));
    sim::instance<SimView>(cancel)->setAccessibilityLabel("取消"_ns);
    onTouch(cancel, NSObject(*this), "cancel"_sel, kTouchUpInside);
    view->addSubview(cancel);
    setView(objc::Wire<SimView *>::from(view->get()));
}

void ABNewPersonViewController::saveWithName(NSString name) {
    const auto phones = makeRecord("ABMultiValueRecord", "initWithValues:labels:"_sel, one(number_),
                                   one("手机"_ns));
    const auto person =
        makeRecord("ABPersonRecord", "initWithName:phones:"_sel, name, phones.get());
    finish(person);
}

void ABNewPersonViewController::cancel() { finish(nullptr); }

void ABNewPersonViewController::finish(NSObject person) {
    // A record of the address book's C interface, whatever it is made of here.
    objc::send<void(NSObject, const void *)>(
        delegate_, "newPersonViewController:didCompleteWithNewPerson:"_sel, NSObject(*this),
        static_cast<const void *>(person.get()));
}

}  // namespace phone
