// The recents list and a call's detail, without any add-on.
#include <set>

#include "PhoneRun.hpp"
#include "objc/Ivar.hpp"
#include "phone/Classes.hpp"
#include "phone/PlaceCall.hpp"
#include "phone/contact/ABContactViewController.hpp"
#include "phone/recents/PHRecentCall.hpp"
#include "phone/recents/PHRecentsCell.hpp"
#include "phone/recents/PHRecentsViewController.hpp"
#include "phone/recents/RecentsDate.hpp"
#include "substrate/MSHookMessageEx.hpp"
#include "uikit/SimTableView.hpp"

namespace {

using objc::send;
using phone::PHRecentCall;

constexpr double kNoon = 1402545600;  // 2014-06-12, 12:00 in Beijing

// What an add-on hears when the list comes back.
int g_appearances = 0;
void (*g_willAppear)(id, SEL, BOOL) = nullptr;

void willAppear(id self, SEL selector, BOOL animated) {
    ++g_appearances;
    g_willAppear(self, selector, animated);
}

class Recents : public test::PhoneRun {
  protected:
    void start(const std::vector<phone::RecentCallFacts> &calls, const char *version = "7.1") {
        setDevice(version);
        phone::ContactBook::shared().add(
            {"周砚", {{"138-2300-0021", "手机"}, {"0755-01238800", "公司"}}});
        std::vector<objc::Owned<NSObject>> objects;
        objects.reserve(calls.size());
        for (const phone::RecentCallFacts &facts : calls) {
            objects.push_back(PHRecentCall::create(facts));
        }
        list_ = show<phone::PHRecentsViewController>(
            objc::make<phone::PHRecentsViewController>().as<NSObject>());
        list_->setCalls(sim::array(objects));
    }

    phone::PHRecentsViewController *list_ = nullptr;
};

TEST_F(Recents, ManyRowsShareAFewCells) {
    constexpr NSInteger kRows = 1000;
    std::set<phone::PHRecentsCell *> cells;
    start(std::vector<phone::RecentCallFacts>(kRows));
    for (NSInteger row = 0; row < kRows; row += 7) {
        ASSERT_TRUE(list_->scrollToRow(row));
        cells.insert(list_->cell(row));
    }
    EXPECT_LE(cells.size(), 12U);
    EXPECT_FALSE(list_->scrollToRow(kRows));
}

TEST_F(Recents, SwipesOpenOrShutByHalfOrAsTheFingerLeaves) {
    start({{.number = "13000000001", .date = kNoon}, {.number = "13000000002", .date = kNoon}});
    const sim::Point first{300, 64 + 24};
    drag(first, {-20, 0});
    const auto confirmation =
        list_->cell(0)->scrollView()->subviews().objectAtIndex(1).as<UIView>();
    const auto button = confirmation.subviews().objectAtIndex(0).as<UIView>();
    EXPECT_EQ(confirmation.frame(), rect(320, 0, 82, 48));
    EXPECT_EQ(button.frame(), rect(0, 0, 82, 47.5));
    EXPECT_EQ(button.subviews().objectAtIndex(0).as<UIView>().frame(), rect(15, 12.75, 52, 22));
    confirmation.setFrame(rect(320, 0, 144, 48));
    EXPECT_EQ(button.frame(), rect(62, 0, 82, 47.5)) << "it keeps to the right";
    hand_->release();
    const struct {
        CGFloat points, last, rest;
    } rows[] = {{40, 0, 0}, {41, 0, 82}, {9, -1, 82}, {81, 1, 0}};
    for (const auto &[points, last, rest] : rows) {
        EXPECT_EQ(list_->cell(0)->scrollView()->children().size(), 1U) << "the content alone";
        drag(first, {-points, 0});
        EXPECT_EQ(list_->cell(0)->scrollView()->contentOffset().x, points);
        hand_->leave({last, 0});
        EXPECT_EQ(list_->cell(0)->scrollView()->contentOffset().x, rest) << points;
        EXPECT_EQ(list_->swipedCell(), rest > 0 ? list_->cell(0) : nullptr);
        hand_->tap({160, 500});
    }
    drag(first, {-50, 0});
    hand_->release();
    const sim::Point second{300, 64 + 48 + 24};
    drag(second, {-50, 0});
    EXPECT_EQ(list_->swipedCell(), nullptr) << "the touch closes the other one";
    drag(second, {-50, 0});
    hand_->release();
    hand_->tap(second);
    EXPECT_EQ(list_->rowCount(), 1);
    EXPECT_EQ(says(UIView(*list_->cell(0))), "130 0000 0001 | 未知 | 12:00");
}

TEST_F(Recents, RowsCallWhenTheyAreTappedAndScrollWhenTheyAreDragged) {
    std::string called;
    phone::setCallPlacer([&](NSString number) { called += sim::utf8(number) + ' '; });
    std::vector<phone::RecentCallFacts> calls(99, {.number = "1", .answered = false});
    calls[1] = {.number = "22"};
    calls[2] = {.number = "luna@example.org"};
    start(calls);
    const auto isGrey = [&](NSInteger row) { return list_->cell(row)->isHighlighted(); };
    const auto at = [](int row) { return sim::Point{160, 64 + 48.0 * row + 24}; };
    for (const int row : {1, 2, 0}) {
        hand_->tap(at(row));
    }
    EXPECT_EQ(called, "22 1 ");
    hand_->press(at(1));
    EXPECT_TRUE(isGrey(1));
    hand_->dragOn({0, -59}, 10);
    EXPECT_FALSE(isGrey(1)) << "the list has the touch";
    EXPECT_EQ(list_->table()->contentOffset(), (CGPoint{0, 49}));
    hand_->dragOn({-90, 109}, 10);
    EXPECT_EQ(list_->swipedCell(), nullptr);
    EXPECT_NEAR(list_->table()->contentOffset().y, -30, 5) << "half of it, beyond the top";
    EXPECT_FALSE(hand_->tap(list_->cell(9)));
    hand_->release();
    EXPECT_EQ(list_->table()->contentOffset().y, 0);
    drag(at(5), {0, -100});
    hand_->leave({0, -16});
    EXPECT_NEAR(list_->table()->contentOffset().y, 116 + 499, 1);
    hand_->tap({200, 42});
    EXPECT_EQ(list_->rowCount(), 97) << "the missed ones";
    hand_->tap({120, 42});
    EXPECT_EQ(list_->rowCount(), 99);
    EXPECT_EQ(called, "22 1 ");
    phone::setCallPlacer({});
}

TEST_F(Recents, DetailsAreOfTheCallsContactOrStranger) {
    start({{.number = "13000000001", .label = "湖北", .date = kNoon},
           {.number = "075501238800", .incoming = false},
           {.number = "luna@example.org"},
           {}});
    const struct {
        const char *head;
        int32_t recordId;
        NSUInteger numbers;
    } rows[] = {
        {"130 0000 0001 | 湖北 | 2014年6月12日 星期四 | 下午12:00 | 来电", -1, 1},
        {"周砚 | 呼出", 1, 2},
        {"luna@example.org | 来电", -1, 0},
        {"未知号码 | 来电", -1, 0},
    };
    MSHookMessageEx(objc::findClass("PhoneViewController"), "viewWillAppear:"_sel,
                    reinterpret_cast<IMP>(&willAppear), reinterpret_cast<IMP *>(&g_willAppear));
    NSInteger row = 0;
    for (const auto &[head, recordId, numbers] : rows) {
        tap(list_->cell(row++)->infoButton());
        const NSObject contact = list_->detail()->contact();
        phone::ABContactHeaderView *const header = list_->detail()->headerView();
        EXPECT_EQ(says(UIView(*header)), head);
        EXPECT_EQ(send<int32_t()>(contact, "recordID"_sel), recordId);
        EXPECT_EQ(send<NSArray()>(contact, "phoneNumbers"_sel).count(), numbers);
        header->nameLabel().setFrame({});
        send<void(id)>(*header, "layoutSublayersOfLayer:"_sel, nullptr);
        EXPECT_NE(header->nameLabel().frame(), CGRect{}) << "laid out by way of its layer";
        tap(list_->detail()->backButton());
        EXPECT_EQ(list_->detail(), nullptr);
        EXPECT_EQ(g_appearances, row);
    }
}

TEST_F(Recents, CallsKnowWhatTheirSystemKnows) {
    for (const char *version : {"7.1", "8.0"}) {
        start({}, version);
        const bool isNew = version[0] == '8';
        const auto call =
            PHRecentCall::create({.number = "1", .incoming = true, .answered = false});
        EXPECT_EQ(call->respondsToSelector("callerId"_sel), isNew);
        EXPECT_EQ(call->respondsToSelector("destination"_sel), !isNew);
        EXPECT_EQ(call->respondsToSelector("addressBookRecord"_sel), !isNew);
        EXPECT_FALSE(send<NSObject()>(call.get(), "date"_sel));
        EXPECT_EQ(isNew ? send<int32_t()>(call.get(), "callStatus"_sel)
                        : send<int32_t()>(call.get(), "type"_sel),
                  8);
        if (isNew) {
            phone::defineClassesOfIos8();
        }
        for (const char *const name : {"_nameLabel", "_taglineLabel"}) {
            EXPECT_EQ(
                class_getInstanceVariable(objc::findClass("ABContactHeaderView"), name) != nullptr,
                !isNew);
            EXPECT_NE(
                class_getInstanceVariable(objc::findClass("ABContactHeaderDisplayView"), name),
                nullptr);
        }
        EXPECT_STREQ(class_getName(object_getClass(call.get())),
                     isNew ? "CHRecentCall" : "PHRecentCall");
        EXPECT_EQ(objc::read<NSObject>(NSObject(*list_), "_table"_ivar), NSObject(*list_->table()));
    }
}

TEST(RecentsDates, GetShorterTheNearerTheyAre) {
    constexpr double kDay = 86400;
    const std::pair<double, phone::RecentsDate> rows[] = {
        {0, {"下午", "12:00"}},      {-kDay / 2, {"上午", "12:00"}}, {-kDay / 2 - 1, {"", "昨天"}},
        {-6 * kDay, {"", "星期五"}}, {-7 * kDay, {"", "14/6/5"}},    {kDay, {"", "14/6/13"}},
    };
    for (const auto &[ago, shown] : rows) {
        EXPECT_EQ(phone::recentsDate(kNoon + ago, kNoon), shown) << ago;
    }
}

}  // namespace
