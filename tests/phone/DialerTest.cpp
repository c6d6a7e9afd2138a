// The dialer at work, without any add-on, and what it makes of numbers while they are typed.
#include "PhoneRun.hpp"
#include "phone/contact/ABNewPersonViewController.hpp"
#include "phone/dialer/DialerController.hpp"
#include "phone/dialer/DialerView.hpp"
#include "phone/dialer/PHHandsetDialerLCDView.hpp"
#include "phone/dialer/TypedNumber.hpp"

namespace {

using phone::ContactBook;
using phone::ContactMatch;

class Dialer : public test::PhoneRun {
  protected:
    void start(const char *version = "7.0", CGFloat height = 568) {
        setDevice(version, height);
        ContactBook::shared().add({"林小满", {{"138 0013 0011", "手机"}}});
        dialer_ =
            show<phone::DialerController>(objc::make<phone::DialerController>().as<NSObject>());
    }
    void press(const std::string &signs) const {
        for (const char sign : signs) {
            const UIView key = sign == '<' ? dialer_->dialerView()->deleteKey()
                               : sign == '>'
                                   ? dialer_->dialerView()->callKey()
                                   : dialer_->dialerView()->keyWithSign(std::string(1, sign));
            ASSERT_TRUE(key) << sign;
            tap(key);
        }
    }
    std::string typed() const { return sim::utf8(dialer_->typedNumber()); }

    phone::DialerController *dialer_ = nullptr;
};

TEST_F(Dialer, KeysOfEveryPhonePutInTheirSigns) {
    for (const char *const version : {"7.0", "7.1", "8.0"}) {
        for (const CGFloat height : {480, 568}) {
            start(version, height);
            press(">");
            EXPECT_EQ(typed(), "");
            press("1234567890*#");
            EXPECT_EQ(typed(), "1234567890*#") << version << ' ' << height;
            press("<<");
            EXPECT_EQ(typed(), "1234567890") << version << ' ' << height;
        }
    }
    press("><<<<<<<<<<");
    EXPECT_EQ(typed(), "");
    press(">");
    EXPECT_EQ(typed(), "1234567890") << "the last number called";
}

TEST_F(Dialer, TheOfferAloneOpensTheSheetThatMayBeCancelled) {
    start();
    phone::PHHandsetDialerLCDView *const display = dialer_->dialerView()->display();
    const CGRect line = display->nameAndLabelView().frame();
    const sim::Point onLine{160, 20 + line.origin.y + line.size.height / 2};
    const auto opens = [this](sim::Point at) {
        sim::tap(window_, at);
        return bool{dialer_->newPersonController() != nullptr};
    };
    EXPECT_FALSE(opens(onLine)) << "nothing typed";
    press("13800130011");
    EXPECT_FALSE(opens(onLine)) << "a contact";
    press("1");
    sim::Finger(window_, onLine).cancel();
    EXPECT_FALSE(dialer_->newPersonController()) << "cancelled";
    EXPECT_FALSE(opens({160, 40})) << "the number itself";
    ASSERT_TRUE(opens(onLine));
    EXPECT_TRUE(dialer_->newPersonView().superview());
    dialer_->newPersonController()->cancel();
    EXPECT_FALSE(dialer_->newPersonController());
    EXPECT_EQ(says(UIView(*display), display->numberLabel()), "+ 添加到通讯录");
}

TEST(TypedNumber, IsGroupedAsItIsTyped) {
    const std::string endless(10000, '7');
    const std::pair<std::string, std::string> rows[] = {
        {"", ""},
        {"1380013", "138 0013"},
        {"13800138000", "138 0013 8000"},
        {"01012345678", "010 1234 5678"},
        {"021", "021"},
        {"0210106", "021 0106"},
        {"02101065012", "021 0106 5012"},
        {"075501238001", "0755 0123 8001"},
        {"+862101065012", "+86 21 0106 5012"},
        {"+442079460123", "+44 20 7946 0123"},
        {"*#06#", "*#06#"},
        {"12,34;5", "12,34;5"},
        {"1380013８", "1380013８"},
        {"123456789012345678901", "123456789012345678901"},
        {endless, endless},
    };
    for (const auto &[text, shown] : rows) {
        EXPECT_EQ(phone::formattedNumber(text), shown);
    }
}

TEST(TypedNumber, LosesWholeCharacters) {
    phone::TypedNumber number;
    number.append("1快📞");
    for (const char *const left : {"1快", "1", "", ""}) {
        number.deleteLast();
        EXPECT_EQ(number.typed(), left);
    }
}

TEST(ContactBook, MatchesNumbersHoweverTheyAreWrittenAndNothingElse) {
    ContactBook book;
    book.add({"林小满", {{"138 0013 0011", "手机"}, {"(010) 0123-4567", ""}}});
    book.add({"第二位", {{"13800130011", "工作"}}});
    book.add({"Ann", {{"+44 20 7946 0018", "home"}}});
    book.add({"服务", {{"100", ""}, {"", ""}}});
    book.add({"Bank", {{"BANK-100", ""}, {"95,01", "short"}}});
    for (const char *const written : {"13800130011", "+8613800130011", "0086 138-0013-0011"}) {
        EXPECT_EQ(book.match(written), (ContactMatch{"林小满", "手机"})) << "the first of two";
    }
    EXPECT_EQ(book.match("01001234567"), (ContactMatch{"林小满", ""}));
    EXPECT_EQ(book.match("+442079460018"), (ContactMatch{"Ann", "home"}));
    EXPECT_EQ(book.match("BANK-100"), (ContactMatch{"Bank", ""}));
    EXPECT_EQ(book.match("95,01"), (ContactMatch{"Bank", "short"}));
    for (const char *const text : {"", "10", "1000", "*100#", "BANK", "100w", "8610", "abc", "+"}) {
        EXPECT_EQ(book.match(text), std::nullopt) << text;
    }
}

}  // namespace
