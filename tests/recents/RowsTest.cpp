// The rows of the recents list as a person sees them.
#include <ostream>

#include "objc/Ivar.hpp"
#include "support/RecentsScreen.hpp"

namespace {

using objc::send;
using test::isShown;
using test::kNoon;
using test::textOf;

constexpr NSInteger kIconTag = 2533, kLineTag = 2534;

/// What stands under the name: the Phone application's label and our line, of which one is empty.
struct Row {
    std::string label, line;
    CGFloat lineWidth = 0, iconX = 0;
    bool operator==(const Row &) const = default;
};
void PrintTo(const Row &row, std::ostream *out) {
    *out << '"' << row.label << "\", \"" << row.line << "\" " << row.lineWidth << " wide, icon at "
         << row.iconX;
}

class RecentsRows : public test::RecentsScreen {
  protected:
    RecentsRows() {
        stub.labels = {{"10001", "推销"}};
        stub.rowTexts = {{"推销", "四川 推销"}};
    }

    Row row(NSInteger index) const {
        const UIView view = cell(index);
        const auto label = objc::read<UIView>(view, "_callerLabelLabel"_ivar);
        const UIView line = view.viewWithTag(kLineTag);
        const UIView icon = view.viewWithTag(kIconTag);
        EXPECT_EQ(isShown(line), isShown(icon));
        if (!isShown(line)) {
            return {textOf(label), ""};
        }
        const CGRect frame = line.frame();
        const CGRect iconFrame = icon.frame();
        EXPECT_EQ(frame, rect(34, 28, frame.size.width, 15));
        EXPECT_EQ(iconFrame, rect(iconFrame.origin.x, 29, 15, 12));
        return {label && send<NSString()>(label, "text"_sel) ? textOf(label) : "", textOf(line),
                frame.size.width, iconFrame.origin.x};
    }
    void appear() const {
        send<void(bool)>(list(), "viewWillAppear:"_sel, true);
        layOut();
    }
    void reloadMessage() const { stub.deliver("msgSystemProcessReloadAllNum"_ns, nullptr); }
};

class RecentsRowsOnEverySystem : public RecentsRows,
                                 public testing::WithParamInterface<const char *> {};

TEST_P(RecentsRowsOnEverySystem, SayWhatIsKnownOfEachCall) {
    stub.descriptions = {{"20", "广东广州"}};
    stub.areas = {{"50", "云南"}};
    stub.persons = {{"40", {"40"}}, {"50", {"50", "51"}}, {"60", {"60", "61"}}, {"70", {"7", "7"}}};
    const auto contact = [](const char *number) {
        return phone::RecentCallFacts{.number = number, .name = number, .date = kNoon};
    };
    start(GetParam(), {{.number = "10001", .date = kNoon},
                       {.number = "20", .label = "北京", .date = kNoon - 86400},
                       {.number = "30", .label = "北京", .date = kNoon},
                       contact("40"),
                       contact("50"),
                       contact("60"),
                       contact("70"),
                       {.date = kNoon},
                       {.number = "luna@example.org", .date = kNoon},
                       {.number = "10001"}});
    // Texts of the size 12, dates of 14: a Chinese character is as wide, any other half of it.
    const Row expected[] = {
        {"", "四川 推销", 222 - 70, 34 + 54 + 3},  // 下午 12:00
        {"", "广东广州", 222 - 28, 34 + 48 + 3},   // 昨天
        {"北京", ""},
        {"", ""},
        {"", "#50  云南", 222 - 70, 34 + 54 + 3},
        {"", "#60  未知", 222 - 70, 34 + 54 + 3},
        {"", ""},
        {"未知", ""},
        {"未知", ""},
        {"", "四川 推销", 222, 34 + 54 + 3},
    };
    for (NSInteger i = 0; i < std::ssize(expected); ++i) {
        EXPECT_EQ(row(i), expected[i]) << "row " << i;
    }
    const auto label = objc::read<UILabel>(cell(0), "_callerLabelLabel"_ivar);
    const auto line = cell(0).viewWithTag(kLineTag).as<UILabel>();
    EXPECT_EQ(line.font(), label.font());
    EXPECT_EQ(line.textColor(), label.textColor());
    EXPECT_EQ(line.superview(), list().cell(0)->contentView()->operator id());
}

TEST_P(RecentsRowsOnEverySystem, ShowWhatChangedOnceTheyAreToldOfItAndAppearAgain) {
    start(GetParam(), {{.number = "10001", .date = kNoon}});
    stub.rowTexts = {{"推销", "四川 广告"}};
    appear();
    EXPECT_EQ(row(0).line, "四川 推销") << "as it was remembered";
    reloadMessage();
    EXPECT_EQ(row(0).line, "四川 推销") << "until it is laid out again";
    appear();
    EXPECT_EQ(row(0).line, "四川 广告");
}

INSTANTIATE_TEST_SUITE_P(Systems, RecentsRowsOnEverySystem, testing::Values("7.0", "7.1", "8.0"));

TEST_F(RecentsRows, AReusedCellForgetsItsFormerCall) {
    std::vector<phone::RecentCallFacts> calls;
    calls.reserve(60);
    for (int i = 0; i < 60; ++i) {
        calls.push_back(
            {.number = i % 2 == 0 ? "10001" : "30", .label = "北京", .date = kNoon - i});
    }
    start("7.1", calls);
    for (const NSInteger top : {0, 7, 20, 49, 1}) {
        list().scrollTo(static_cast<CGFloat>(top) * 48);
        layOut();
        for (NSInteger i = top; i < top + 9; ++i) {
            EXPECT_EQ(row(i).line, i % 2 == 0 ? "四川 推销" : "") << "row " << i;
            EXPECT_EQ(row(i).label, i % 2 == 0 ? "" : "北京") << "row " << i;
        }
    }
    const size_t asked = stub.queries.size();
    list().scrollTo(20 * 48);
    layOut();
    EXPECT_EQ(stub.queries.size(), asked) << "seen before, and remembered";
}

TEST_F(RecentsRows, ShowWhatThePhoneApplicationSaysWhereTheCompanionRaises) {
    start("7.1", {{.number = "10001", .label = "北京", .date = kNoon}});
    ASSERT_EQ(row(0).line, "四川 推销");
    reloadMessage();
    for (const char *const message :
         {"pureNumber", "getRecordForNumber:atSysDate:", "getCeilCGFloat:"}) {
        stub.raisesAt = message;
        appear();
        EXPECT_EQ(row(0), (Row{"北京", ""})) << message;
    }
    stub.raisesAt = {};
    appear();
    EXPECT_EQ(row(0).line, "四川 推销");
}

TEST_F(RecentsRows, AMenuThatFailsTakesNoLineWithIt) {
    start("7.0", {{.number = "10001", .label = "北京", .date = kNoon}});
    stub.raisesAt = "getRecordForNumber:atSysDate:";
    ASSERT_TRUE(list().swipe(0, 72));
    layOut();
    EXPECT_EQ(row(0).line, "四川 推销");
}

TEST_F(RecentsRows, TaggedViewsAreSearchedForBelowAView) {
    const auto above = withFrame<UIView>({});
    const auto between = withFrame<UIView>({});
    const auto below = withFrame<UIView>({});
    above->setTag(5);
    above->addSubview(between);
    addTagged(between, below, 5);
    const auto find = [&](UIView view) {
        return send<UIView(UIView, NSInteger)>("ZQSystemCallHistoryViewHook"_cls,
                                               "getSubviewOfView:WithTag:"_sel, view, 5);
    };
    EXPECT_EQ(find(above), below.get());
    EXPECT_FALSE(find(below));
    EXPECT_FALSE(find(nullptr));
}

}  // namespace
