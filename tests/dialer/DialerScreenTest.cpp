// The dialer as its user sees it: keys are pressed, and the display's frames, texts and hidden
// flags looked at. Texts are measured by rule: 14 points a Chinese character, 7 any other.
#include <gtest/gtest.h>

#include "platform/PhoneApp.hpp"
#include "stage/Session.hpp"
#include "support/Dialer.hpp"

namespace {

using stage::Model;
using test::Dialer;

struct Place {
    Model model;
    CGFloat lineTop;
    bool hasOffer;
};

void PrintTo(const Place &place, std::ostream *out) { *out << place.model.slug(); }

constexpr Place kPlaces[] = {
    {{"7.0", "4"}, 48, true},
    {{"7.0", "3.5"}, 41, true},
    {{"7.1", "4"}, 44, false},
    {{"7.1", "3.5"}, 37, false},
};

class DialerOn : public testing::TestWithParam<Place> {
  protected:
    Dialer dialer_{{.model = GetParam().model}};
};

INSTANTIATE_TEST_SUITE_P(Phones, DialerOn, testing::ValuesIn(kPlaces), [](const auto &phone) {
    std::string name = phone.param.model.slug();
    std::erase_if(name, [](char c) { return c == '.' || c == '-'; });
    return name;
});

TEST_P(DialerOn, AKnownMarkStandsCentredInTheNameLinesPlace) {
    const auto &[model, top, hasOffer] = GetParam();
    dialer_.type("17700000061");
    ASSERT_TRUE(dialer_.showsRow());
    EXPECT_EQ(dialer_.text(1002), "诈骗电话");
    EXPECT_EQ(dialer_.frame(1000), hasOffer ? rect(68, top, 184, 25) : rect(122, top, 76, 25));
    EXPECT_EQ(dialer_.frame(1001), rect(0, 5, 15, 15));
    EXPECT_EQ(dialer_.frame(1002), rect(20, 0, 56, 25));
    EXPECT_EQ(dialer_.frame(1003), hasOffer ? rect(81, 5, 1, 15) : CGRect());
    EXPECT_EQ(dialer_.frame(1004), hasOffer ? rect(87, 0, 97, 25) : CGRect());
    EXPECT_EQ(dialer_.text(1004), hasOffer ? "添加到通讯录" : "(nil)");
    EXPECT_EQ(dialer_.lcd().frame().size.width, 320);
    EXPECT_EQ(dialer_.lcd().nameAndLabelView().frame(), rect(0, top, 320, 25));
}

TEST_P(DialerOn, AWideDescriptionIsCutAt165Points) {
    dialer_.type("075501238001");
    ASSERT_TRUE(dialer_.showsRow());
    const CGRect row = dialer_.frame(1000);
    EXPECT_GT(dialer_.text(1002).size(), 3U * 165 / 14);  // bytes: more characters than fit
    EXPECT_LE(dialer_.frame(1002).size.width, 165);
    EXPECT_GT(dialer_.frame(1002).size.width, 165 - 14);
    EXPECT_EQ(row.origin.x, (320 - row.size.width) / 2);
}

TEST_P(DialerOn, AContactAndShortNumbersKeepTheNameLine) {
    dialer_.type("13");
    EXPECT_TRUE(dialer_.showsNameLine());
    EXPECT_FALSE(dialer_.hasRow()) << "nothing is made before it is needed";
    dialer_.type("800130011");
    EXPECT_TRUE(dialer_.showsNameLine());
    EXPECT_NE(dialer_.session.lineText().find("林小满"), std::string::npos);
}

TEST_P(DialerOn, DeletingBackToTwoCharactersBringsTheNameLineBack) {
    dialer_.type("17700000061");
    const id row = dialer_.view(1000);
    dialer_.erase(8);
    EXPECT_EQ(dialer_.session.numberText(), "177");
    dialer_.erase(1);
    EXPECT_TRUE(dialer_.showsNameLine());
    EXPECT_TRUE(dialer_.hasRow()) << "a row stays, hidden";
    dialer_.type("700000061");
    EXPECT_TRUE(dialer_.showsRow());
    EXPECT_EQ(dialer_.view(1000).get(), row) << "and is used again";
    EXPECT_EQ(dialer_.text(1002), "诈骗电话");
}

TEST_P(DialerOn, TheOfferLosesItsPlusBeforeIos71) {
    dialer_.type("1");
    EXPECT_EQ(dialer_.session.lineText(), "添加到通讯录");
}

TEST_P(DialerOn, ATouchPressesTheOfferAndACancelledOneReleasesIt) {
    const bool hasOffer = GetParam().hasOffer;
    dialer_.type("17700000061");
    const auto color = [&] { return hasOffer ? dialer_.textColor(1004) : std::string(); };
    const std::string released = color();
    dialer_.perform("touch add-contact-hold");
    EXPECT_EQ(color() != released, hasOffer);
    dialer_.perform("touch add-contact-cancel");
    EXPECT_EQ(color(), released);
    // A completed tap is not noticed: the pressed colour stays.
    dialer_.perform("touch add-contact");
    EXPECT_EQ(color() != released, hasOffer);
}

TEST_P(DialerOn, TypedTextOfEveryKindLeavesEveryViewInPlace) {
    const CGRect nameLine = dialer_.lcd().nameAndLabelView().frame();
    std::string shown = "1";
    dialer_.type(shown);
    for (const std::string &text :
         {std::string("*#+,;"), std::string("abcXYZ"), std::string("１３８００１３８０００"),
          std::string("😀📞👨‍👩‍👧"), std::string("%@%d%n|$$"), std::string(40, '1'),
          std::string(10'000, '1')}) {
        dialer_.erase(static_cast<int>(shown.size()));
        dialer_.type(text);
        const std::string number = dialer_.session.numberText();
        EXPECT_FALSE(number.empty());
        EXPECT_EQ(dialer_.lcd().nameAndLabelView().frame(), nameLine);
        EXPECT_EQ(dialer_.lcd().frame(), rect(0, 20, 320, dialer_.lcd().frame().size.height));
        if (dialer_.hasRow()) {
            EXPECT_GE(dialer_.frame(1000).origin.x, 0);
            EXPECT_EQ(dialer_.frame(1001), rect(0, 5, 15, 15));
        }
        EXPECT_NE(dialer_.showsRow(), dialer_.showsNameLine());
        shown = text;
    }
}

TEST(Dialer, WithoutTheAddOnOrFromIos8OnIsThePhoneApplicationsOwn) {
    Dialer dialer({.model = {"8.0", "4"}});
    dialer.type("17700000061");
    EXPECT_FALSE(dialer.hasRow());
    EXPECT_TRUE(dialer.showsNameLine());
}

TEST(Dialer, ShowsNothingWhereTheUserDoesNotWantIt) {
    const test::TemporaryFolder folder;
    const auto world = folder / "quiet-world.json";
    test::writeFile(world, R"({"preferences": {"showNumberArea": false},
        "marks": [{"number": "17700000061", "label": "诈骗电话", "count": 37}]})");
    Dialer dialer({.model = {"7.0", "4"}, .world = world});
    dialer.type("17700000061");
    EXPECT_FALSE(dialer.hasRow());
    EXPECT_TRUE(dialer.showsNameLine());
}

TEST(Dialer, ANewContactTakesTheFirstLabelOffTheScreenThatIsShown) {
    Dialer dialer({.model = {"7.0", "4"}});
    const auto hint = withFrame<UILabel>(rect(0, 0, 10, 10));
    objc::send<UIView()>(dialer.controller(), "view"_sel).addSubview(hint);
    const auto contactCreated = [&] {
        objc::send<void(id, const void *)>(dialer.controller(),
                                           "newPersonViewController:didCompleteWithNewPerson:"_sel,
                                           nullptr, nullptr);
    };
    objc::send<void(bool)>(dialer.controller(), "viewWillDisappear:"_sel, false);
    contactCreated();
    EXPECT_TRUE(hint->superview()) << "no dialer was on screen";
    objc::send<void(bool)>(dialer.controller(), "viewWillAppear:"_sel, false);
    contactCreated();
    EXPECT_FALSE(hint->superview());
}

}  // namespace
