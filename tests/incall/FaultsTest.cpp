// The in-call screen when something is missing or fails: the Phone application's own screen stands.
#include <gtest/gtest.h>

#include "incall/AddedViews.hpp"
#include "support/InCall.hpp"

namespace {

using namespace incall;
using objc::Owned;
using objc::send;

const char *const kParts[] = {"_textView", "_labelView", "_imageView", "_contentView"};

/// A display of another make: views of any kind in instance variables of the names that are given.
Owned<UIView> makeDisplay(const char *className, const std::vector<const char *> &parts) {
    const Class cls = objc_allocateClassPair("UIView"_cls, className, 0);
    for (const char *const part : parts) {
        class_addIvar(cls, part, sizeof(id), 3, "@");
    }
    objc_registerClassPair(cls);
    const id memory = send<id()>(cls, "alloc"_sel);
    auto display = Owned<UIView>::adopt(
        send<UIView(CGRect)>(memory, "initWithFrame:"_sel, rect(0, 20, 320, 96)));
    for (const char *const part : parts) {
        const auto view = withFrame<UIView>(rect(10, 10, 10, 10));
        display->addSubview(view);
        const id owned = view.get();
        std::memcpy(reinterpret_cast<char *>(display.get().get()) +
                        ivar_getOffset(class_getInstanceVariable(cls, part)),
                    &owned, sizeof owned);
    }
    return display;
}

class InCallFaults : public test::InCall {
  protected:
    InCallFaults() {
        stub.descriptions = {{"10001", "四川成都"}};
        stub.areas = {{"10001", "四川"}};
        stub.identities["10001"] = {
            .label = "诈骗电话", .type = IdentityKind::UserMark, .numOfMark = 37};
    }

    /// Whatever the add-on does in a layout pass on `display`, both as an LCD view and as a field.
    void layOutAsBoth(UIView display) {
        const auto lcdView = display.as<InCallLCDView>();
        const bool describes = hook().addDescriptionLabel(lcdView);
        hook().layoutSubviewOfLCDView(lcdView, hook().isBrandNumber(), describes);
        const auto lcdField = display.as<InCallLCDField>();
        if (hook().addNumInfoToLCDField(lcdField)) {
            hook().layoutSubviewsOfLCDField(lcdField);
        }
        hook().addAvatarView(lcdField);
    }
};

TEST_F(InCallFaults, DisplaysWithoutSomeOrAllOfTheirPartsAreLaidOutAsFarAsTheyGo) {
    start(7.0);
    const auto call = begin({"10001"});
    for (const char *const missing : kParts) {
        std::vector<const char *> parts(std::begin(kParts), std::end(kParts));
        std::erase(parts, missing);
        const auto display = makeDisplay((std::string("Without") + missing).c_str(), parts);
        layOutAsBoth(display);
        EXPECT_EQ(test::textOf(display->viewWithTag(kDescriptionTag)), "诈骗电话 | 37人标记")
            << missing;
        EXPECT_EQ(display->viewWithTag(kFieldDescriptionTag) != nullptr,
                  std::string(missing) != "_contentView");
    }
    const auto bare = makeDisplay("WithoutAnyPart", {});
    layOutAsBoth(bare);
    EXPECT_EQ(bare->viewWithTag(kContainerTag).frame().origin.y, 74);
    layOutAsBoth(nullptr);
}

TEST_F(InCallFaults, ARegionNeedsALabel) {
    start(7.1);
    const auto call = begin({"10001", false, 2});
    const auto bare = makeDisplay("WithoutALabel", {});
    hook().layoutContactRegionInfoOfView(bare.get().as<InCallDisplay>());
    hook().layoutContactRegionInfoOfView(nullptr);
    EXPECT_EQ(bare->subviews().count(), 0U);
}

TEST_F(InCallFaults, WithoutANumberOrWhereNothingIsKnownNothingIsShown) {
    start(7.0);
    for (const char *const number : {static_cast<const char *>(nullptr), "10001"}) {
        stub.knowsNothing = number != nullptr;
        for (const int contact : {-1, 4}) {
            const auto call = begin({number, true, contact});
            layOut(lcd());
            layOut(field());
            EXPECT_FALSE(lcd().viewWithTag(kDescriptionTag));
            EXPECT_FALSE(field().viewWithTag(kFieldDescriptionTag));
        }
    }
    EXPECT_TRUE(stub.cloudQueries.empty());
}

TEST_F(InCallFaults, AMissingLogoFallsBackToTheCompanionsAndThenToNone) {
    start(7.0);
    stub.identities["10001"] = {
        .type = IdentityKind::Brand, .brandName = "云雀速递", .brandLogoPath = "/nowhere/logo.png"};
    const auto call = begin({"10001"});
    layOut(lcd());
    const UIView logo = lcd().viewWithTag(kLogoTag);
    EXPECT_FALSE(send<NSObject()>(logo, "image"_sel));
    EXPECT_EQ(logo.frame(), rect(29, 0, 44, 45));
    EXPECT_EQ(test::textOf(lcd().viewWithTag(kDescriptionTag)), "云雀速递");
}

/// A number that asks for its call's end when it is parsed.
TEST_F(InCallFaults, ACallMayDieDuringALayoutPass) {
    start(7.0);
    auto call = begin({"10001"});
    stub.onParse = [&] { call = {}; };
    layOut(lcd());
    EXPECT_FALSE(hook().currentOutCall());
    call = begin({"10001"});
    layOut(field());
    EXPECT_FALSE(hook().currentOutCall());
    stub.onParse = {};
    layOut(lcd());
    layOut(field());
}

}  // namespace
