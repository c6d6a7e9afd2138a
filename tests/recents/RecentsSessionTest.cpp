// The recents screen for a long time: nothing may stay behind of what came and went.
#include "phone/StageRun.hpp"
#include "phone/recents/PHRecentCall.hpp"
#include "phone/recents/PHRecentsCell.hpp"
#include "phone/recents/PHRecentsViewController.hpp"
#include "support/LiveObjects.hpp"
#include "uikit/Foundation.hpp"
#include "uikit/SimScrollView.hpp"

namespace {

using namespace std::chrono_literals;

class RecentsSession : public test::StageRun, public testing::WithParamInterface<const char *> {
  protected:
    RecentsSession() { session_.open({stage::ScreenKind::Recents}); }

    /// Callers of every kind by turns. Numbers are grouped, as the list has nothing to format then.
    void show(int count) {
        static constexpr std::array kCallers = {
            "177-0000-0061", "021-0106-5012",    "150-0000-0031",
            "138-2300-0021", "138-0013-0011",    "+1 415-555-0132",
            "130-0000-0101", "luna@example.org", "",
            "400-200-1818"};
        const objc::AutoreleasePool pool;
        std::vector<objc::Owned<NSObject>> calls;
        calls.reserve(static_cast<size_t>(count));
        for (int i = 0; i < count; ++i) {
            calls.push_back(phone::PHRecentCall::create(
                {.number = kCallers[static_cast<size_t>(i) % kCallers.size()],
                 .incoming = i % 3 != 0,
                 .date = 1402545600.0 - 60.0 * i}));
        }
        list().setCalls(sim::array(calls));
    }
    static bool isBefore8() { return std::string_view(GetParam()) < "8"; }
    phone::PHRecentsViewController &list() { return *session_.recents(); }

    /// Does it `count` times, and twice: what the first round leaves is the cache.
    template <class Round>
    void expectTheSameAgain(int count, Round round) {
        const auto all = [&] {
            for (int i = 0; i < count; ++i) {
                const objc::AutoreleasePool pool;
                round(i);
            }
            return test::liveObjects();
        };
        test::liveObjects();
        const int before = all();
        EXPECT_EQ(all(), before);
    }

    stage::Session session_{settings(GetParam(), "4")};
};

INSTANTIATE_TEST_SUITE_P(Systems, RecentsSession, testing::Values("7.0", "7.1", "8.0"),
                         [](const auto &system) {
                             std::string name = std::string("Ios") + system.param;
                             std::erase(name, '.');
                             return name;
                         });

TEST_P(RecentsSession, EveryTabWithATableIsReadAnewWhenItAppears) {
    const auto showTab = [&](const char *how) {
        perform(session_, {{stage::Step::Kind::Tab, how}});
        return session_.tree();
    };
    showTab("favourites");
    showTab("back");
    phone::ContactBook::shared().add({"新来的", {{"13900000001", "手机"}}});
    EXPECT_EQ(showTab("favourites").find("新来的") != std::string::npos, isBefore8());
}

TEST_P(RecentsSession, TenThousandRowsThereAndBackLeaveNoObjectBehind) {
    constexpr int kRows = 10000;
    show(kRows);
    expectTheSameAgain(2 * kRows, [&](int i) {
        ASSERT_TRUE(list().scrollToRow(i < kRows ? i : 2 * kRows - 1 - i));
    });
}

TEST_P(RecentsSession, TwoHundredDetailsLeaveNoObjectBehind) {
    show(200);
    expectTheSameAgain(200, [&](int row) {
        ASSERT_TRUE(list().scrollToRow(row) && list().openDetail(row));
        session_.tree();
        ASSERT_TRUE(list().back());
    });
}

TEST_P(RecentsSession, AReleasedRowIsWhollyOpenOrShutAsTheSystemDecides) {
    show(3);
    ASSERT_EQ(list().swipe(0, 1), isBefore8());
    const struct {
        CGFloat points, velocity, rest;
    } rows[] = {{71, 0, 0}, {72, 0, 144}, {80, 0, 144}, {20, 1, 144}, {100, -1, 0}};
    for (const auto &[points, velocity, rest] : rows) {
        ASSERT_EQ(list().swipe(0, points) && list().releaseSwipe(velocity), isBefore8());
        if (!isBefore8()) {
            return;
        }
        EXPECT_EQ(list().cell(0)->scrollView()->contentOffset().x, rest) << points;
        list().closeSwipe();
    }
}

TEST_P(RecentsSession, TheEndOfEditModeIsHeardOfOnceNoFingerDrags) {
    show(3);
    const auto swiped = [&](CGFloat points) {
        EXPECT_EQ(list().swipe(0, points), isBefore8());
        return list().cell(0)->swipeWidth();
    };
    objc::send<void(bool, bool)>(list(), "setEditing:animated:"_sel, true, true);
    session_.wait(1s);
    objc::send<void(bool, bool)>(list(), "setEditing:animated:"_sel, false, true);
    EXPECT_EQ(swiped(20), isBefore8() ? 82 : 0) << "the row counts as edited with its list";
    session_.wait(1s);
    EXPECT_EQ(swiped(40), isBefore8() ? 82 : 0) << "the finger still drags";
    list().releaseSwipe(-1);
    session_.wait(1s);
    EXPECT_EQ(swiped(20), isBefore8() ? 144 : 0);
    list().releaseSwipe(-1);
}

TEST_P(RecentsSession, TwoHundredSwipesLeaveNoObjectBehind) {
    show(200);
    expectTheSameAgain(200, [&](int row) {
        ASSERT_TRUE(list().scrollToRow(row));
        ASSERT_EQ(list().swipeOpen(row), isBefore8());
        ASSERT_EQ(list().releaseSwipe(), isBefore8());
        list().closeSwipe();
    });
}

}  // namespace
