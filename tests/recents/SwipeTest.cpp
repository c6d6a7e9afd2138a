// Swiping a row of the recents list: what appears beside the delete button, where the row comes to
// rest, and what the buttons do.
#include "support/RecentsScreen.hpp"
#include "uikit/Finger.hpp"
#include "uikit/Foundation.hpp"
#include "uikit/SimScrollView.hpp"

namespace {

using objc::send;
using test::kNoon;
using test::maybeText;

class RecentsSwipe : public test::RecentsScreen {
  protected:
    RecentsSwipe() {
        using enum IdentityKind;
        stub.identities = {{"3", {.type = UserMark, .numOfMark = 37}},
                           {"2", {.type = UserMark, .numOfMark = 1}},
                           {"4", {.type = OwnMark}},
                           {"1", {.type = Region}}};
        for (const char *const number : {"1", "2", "3", "4", "5", "6", "7"}) {
            stub.histories[number] = {1, 2};
        }
        stub.histories["6"] = {1, 1};
    }
    void TearDown() override { setListEditing(false); }

    void start(const char *version) {
        test::RecentsScreen::start(version, {{.number = "3", .date = kNoon + 0.9},
                                             {.number = "2", .date = kNoon},
                                             {.number = "4", .date = kNoon},
                                             {.number = "1", .date = kNoon},
                                             {.number = "5", .date = kNoon},
                                             {.number = "6", .date = kNoon},
                                             {.number = "3@example.org", .date = kNoon},
                                             {.date = kNoon},
                                             {.number = "7", .name = "周砚", .date = kNoon}});
    }
    static void setListEditing(bool editing) {
        send<void(NSObject)>("ZQSystemCallHistoryViewHook"_cls, "setTableStatus:"_sel,
                             NSNumber::withBool(editing));
    }

    SimScrollView &scrollView(NSInteger row) const { return *list().cell(row)->scrollView(); }
    UIView confirmation(NSInteger row) const {
        const NSArray views = UIView(scrollView(row)).subviews();
        for (NSUInteger i = 0; i < views.count(); ++i) {
            const NSObject view = views.objectAtIndex(i);
            if (view.isKindOfClass("UITableViewCellDeleteConfirmationView"_cls)) {
                return view.as<UIView>();
            }
        }
        return nullptr;
    }
    /// The buttons in the order in which they lie, and how wide they are together.
    std::string menu(NSInteger row) const {
        const NSArray buttons = confirmation(row).subviews();
        std::map<CGFloat, std::string> titles;
        for (NSUInteger i = 0; i < buttons.count(); ++i) {
            const auto button = buttons.objectAtIndex(i).as<UIView>();
            const CGRect frame = button.frame();
            EXPECT_EQ(frame, rect(frame.origin.x, 0, titles.empty() ? frame.size.width : 48, 47.5));
            titles[frame.origin.x] +=
                test::readable(send<NSString()>(button, "currentTitle"_sel)) + " ";
        }
        std::string all;
        for (const auto &[x, title] : titles) {
            EXPECT_EQ(x, titles.size() == 1 ? 0 : x);
            all += title;
        }
        return all + std::to_string(static_cast<int>(confirmation(row).frame().size.width));
    }
    UIView button(NSInteger row, NSInteger tag) const { return confirmation(row).viewWithTag(tag); }
};

class RecentsSwipeBefore8 : public RecentsSwipe,
                            public testing::WithParamInterface<const char *> {};

TEST_P(RecentsSwipeBefore8, OffersWhatMayBeDoneWithTheNumber) {
    start(GetParam());
    const char *const expected[] = {
        "纠错 标记 删除 144",  // marked by some
        "纠错 删除 96",        // by one
        "标记 删除 96",        // by the user
        "删除 48",             // a region that nothing can be done about
        "标记 删除 96",        // unknown, one call of its history can be marked
        "删除 48",             // unknown, none can
        "删除 48",             // an address
        "删除 48",             // hidden
        "删除 48",             // a contact
    };
    for (NSInteger row = 0; row < std::ssize(expected); ++row) {
        ASSERT_TRUE(list().swipe(row, 30));
        EXPECT_EQ(menu(row), expected[row]) << "row " << row;
        list().swipe(row, 40);
        EXPECT_EQ(menu(row), expected[row]) << "nothing is added twice";
        list().closeSwipe();
    }
}

TEST_P(RecentsSwipeBefore8, RestsOpenFromHalfOfTheMenuOn) {
    start(GetParam());
    const struct {
        NSInteger row;
        CGFloat points, rest, inset;
    } cases[] = {{0, 71, 0, 0},   {0, 72, 72, 144}, {0, 100, 100, 144}, {1, 47, 0, 0},
                 {1, 48, 48, 96}, {3, 23, 0, 0},    {3, 24, 24, 48}};
    for (const auto &[row, points, rest, inset] : cases) {
        ASSERT_TRUE(list().swipe(row, points));
        ASSERT_TRUE(list().releaseSwipe());
        EXPECT_EQ(scrollView(row).contentOffset().x, rest) << row << " at " << points;
        EXPECT_EQ(scrollView(row).contentInset().right, inset) << row << " at " << points;
        list().closeSwipe();
    }
}

INSTANTIATE_TEST_SUITE_P(Systems, RecentsSwipeBefore8, testing::Values("7.0", "7.1"));

TEST_F(RecentsSwipe, ButtonsActOnTheSwipedCall) {
    start("7.1");
    recents::setPhonePureNumber("9"_ns);
    recents::setCurrentRecordDate(nullptr);
    ASSERT_TRUE(list().swipeOpen(0));
    EXPECT_EQ(maybeText(recents::phonePureNumber()), "3");
    EXPECT_EQ(recents::currentRecordDate()->secondsSince1970(), kNoon + 0.9);
    sim::tap(sim::instance<SimView>(button(0, 1012)));
    sim::tap(sim::instance<SimView>(button(0, 1013)));
    EXPECT_EQ(stub.openedLinks,
              (std::vector<std::string>{"zequor://errorCorrect?3/", "zequor://mark?3/1402545600"}));
}

TEST_F(RecentsSwipe, MenusAppearBehindAPointOnly) {
    start("7.1");
    list().cell(0)->beginSwipe();
    for (const auto &[x, isAdded] : {std::pair(CGFloat{1}, false), {CGFloat{1.5}, true}}) {
        send<void(CGPoint)>(scrollView(0), "setContentOffset:"_sel, CGPoint{x, 0});
        EXPECT_EQ(button(0, 1012) != nullptr, isAdded) << x;
    }
}

TEST_F(RecentsSwipe, AListThatIsEditedIsTheTelephonesOwn) {
    start("7.1");
    recents::setPhonePureNumber("9"_ns);
    setListEditing(true);
    ASSERT_TRUE(list().swipe(0, 72));
    EXPECT_EQ(menu(0), "删除 82");
    EXPECT_EQ(maybeText(recents::phonePureNumber()), "9") << "nothing is remembered of the call";
    ASSERT_TRUE(list().releaseSwipe());
    EXPECT_EQ(scrollView(0).contentOffset().x, 82) << "the telephone's own rest";
}

TEST_F(RecentsSwipe, ACompanionThatRaisesLeavesTheDeleteButton) {
    start("7.1");
    stub.raisesAt = "pureNumber";
    ASSERT_TRUE(list().swipe(0, 72));
    EXPECT_EQ(menu(0), "删除 48");
    ASSERT_TRUE(list().releaseSwipe());
    list().closeSwipe();
    stub.raisesAt = {};
    stub.knowsNothing = true;
    ASSERT_TRUE(list().swipe(0, 72));
    EXPECT_EQ(menu(0), "删除 48");
}

}  // namespace
