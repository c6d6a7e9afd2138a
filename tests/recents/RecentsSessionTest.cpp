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
    /// False from iOS 8 on, where there is no swipe.
    bool swipe(int row, std::optional<double> points = {}) {
        std::string step = "swipe " + std::to_string(row);
        if (points) {
            step += "," + std::to_string(*points);
        }
        expectEach(session_, {{step, isBefore8() ? "done" : "rows can be swiped before iOS 8"}});
        return isBefore8();
    }
    phone::PHRecentsViewController &list() { return *session_.recents(); }

    /// Does it `count` times, and twice: what the first round leaves is the cache.
    template <class Round>
    void expectTheSameAgain(int count, Round round) {
        const auto all = [&] {
            for (int i = 0; i < count; ++i) {
                const objc::AutoreleasePool pool;
                round(i);
            }
            perform(session_, {"scroll row:1"});
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
        perform(session_, {std::string("tab ") + how});
        return session_.tree();
    };
    showTab("favourites");
    showTab("recents");
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
        const std::string number = std::to_string(row + 1);
        perform(session_, {"scroll row:" + number, "open " + number});
        perform(session_, {"back"});
    });
}

TEST_P(RecentsSession, AReleasedRowIsWhollyOpenOrShutAsTheSystemDecides) {
    show(3);
    const struct {
        double points;
        CGFloat last, rest;
    } rows[] = {{71, 0, 0}, {72, 0, 144}, {80, 0, 144}, {20, -1, 144}, {100, 1, 0}};
    for (const auto &[points, last, rest] : rows) {
        if (!swipe(1, points)) {
            return;
        }
        session_.window().hand().leave({last, 0});
        EXPECT_EQ(list().cell(0)->scrollView()->contentOffset().x, rest) << points;
        list().closeSwipe();
    }
}

TEST_P(RecentsSession, TheEndOfEditModeIsHeardOfOnceNoFingerDrags) {
    show(3);
    perform(session_, {"edit on", "wait 1", "edit off"});
    const auto width = [&] { return list().cell(0)->swipeWidth(); };
    if (!swipe(1, 20)) {
        return;
    }
    EXPECT_EQ(width(), 82) << "the row counts as edited with its list";
    session_.wait(1s);
    swipe(1, 40);
    EXPECT_EQ(width(), 82) << "the finger still drags";
    session_.window().hand().leave({9, 0});
    session_.wait(1s);
    swipe(1, 20);
    EXPECT_EQ(width(), 144);
}

TEST_P(RecentsSession, TwoHundredSwipesLeaveNoObjectBehind) {
    show(200);
    expectTheSameAgain(200, [&](int row) {
        perform(session_, {"scroll row:" + std::to_string(row + 1)});
        if (swipe(row + 1)) {
            perform(session_, {"release"});
        }
    });
}

}  // namespace
