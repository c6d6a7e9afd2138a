// The recents through a session and through the command line: own call histories, time, refusals.
#include <fstream>

#include <gmock/gmock.h>

#include "StageRun.hpp"
#include "phone/recents/PHRecentsViewController.hpp"
#include "stage/CallsFile.hpp"
#include "stage/Errors.hpp"

namespace {

using stage::ScreenKind;
using stage::Session;
using stage::Step;
using testing::HasSubstr;
using testing::Not;
using Kind = Step::Kind;
using namespace std::chrono_literals;

class RecentsCommand : public test::StageRun {
  protected:
    std::filesystem::path file(const std::string &content) const {
        const auto path = folder_ / "calls.csv";
        std::ofstream(path, std::ios::binary) << content;
        return path;
    }

    template <class Work>
    static std::string refusal(const Work &work) {
        try {
            work();
        } catch (const stage::Failure &failure) {
            return failure.what();
        }
        return "done";
    }
};

TEST_F(RecentsCommand, ReadsAnOwnCallHistoryLatestFirst) {
    const auto calls = stage::readCallsFile(
        file("\xEF\xBB\xBFnumber,name,direction,time,answered\r\n"
             ",,incoming,,no\r\n"
             "10086,,outgoing,2014-06-01T00:00:00Z,yes\r\n"
             "\r\n"
             "\"10,086\",\"Luna \"\"L\"\"\r\n楼上\",incoming,2014-06-01T00:00:01Z,yes"));
    ASSERT_EQ(calls.size(), 3U);
    EXPECT_EQ(calls[0],
              (companion::RecentCall{"10,086", "Luna \"L\"\n楼上", "", true, true, 1401580801}));
    EXPECT_EQ(calls[1], (companion::RecentCall{"10086", "", "", false, true, 1401580800}));
    EXPECT_EQ(calls[2], companion::RecentCall{.incoming = true});
}

TEST_F(RecentsCommand, NamesTheMistakesOfACallHistoryByLine) {
    const std::string heading = "number,name,direction,time,answered\n";
    const std::string good = "1,,incoming,,no\n";
    const struct {
        std::string content;
        std::string complaint;
    } cases[] = {
        {"", "a mistake, so that nothing of it is used; mend this:\n"},
        {"number,name\n", ":1: no heading; begin with"},
        {heading + good + "1,,in,,no\n", ":3: direction is 'in'; write incoming or outgoing"},
        {heading + "1,,incoming,,maybe\n", ":2: answered is 'maybe'; write yes or no"},
        {heading + "1,,incoming,2014-02-30T00:00:00Z,no\n", ":2: time is '2014-02-30T00:00:00Z'"},
        {heading + "\"1\n2\",,incoming,,no\n1,no\n", ":4: 2 fields instead of 5"},
        {heading + "1,\xFF,incoming,,no\n", ":2: '\xEF\xBF\xBD' is no UTF-8 text"},
        {heading + good + "1,\"a\n" + good, ":3: a quote that is never closed"},
        {heading + "1,\"a\"b,incoming,,no\n", ":2: text behind a closing quote"},
        {heading + "1,a\"b,incoming,,no\n", ":2: a quote inside a field"},
    };
    for (const auto &one : cases) {
        const auto own = file(one.content);
        EXPECT_THAT(refusal([&] { stage::readCallsFile(own); }), HasSubstr(one.complaint));
    }
    EXPECT_THAT(refusal([&] { stage::readCallsFile(folder_); }), HasSubstr("cannot be read"));
}

TEST_F(RecentsCommand, DelaysAreExactInSimulatedTime) {
    Session session(settings("7.1", "4"));
    const auto list = objc::send<NSArray()>("NSMutableArray"_cls, "array"_sel);
    const auto addIn = [&](double seconds, NSString text) {
        objc::send<void(SEL, id, double)>(list, "performSelector:withObject:afterDelay:"_sel,
                                          SEL("addObject:"_sel), text, seconds);
    };
    addIn(0.5, "second"_ns);
    addIn(0.25, "first"_ns);
    session.wait(499ms);
    EXPECT_EQ(list.count(), 1U);
    session.wait(1ms);
    ASSERT_EQ(list.count(), 2U);
    EXPECT_TRUE(list.objectAtIndex(0).as<NSString>().isEqualToString("first"_ns));
}

TEST_F(RecentsCommand, SaysWhatAStepNeeds) {
    Session session(settings("7.1", "3.5"));
    session.open({ScreenKind::Recents});
    const auto expect = [&](const Step &step, const char *complaint) {
        std::ostringstream ignored;
        EXPECT_THAT(refusal([&] { session.perform(step, ignored); }), HasSubstr(complaint));
    };
    expect({Kind::Open, {}, 46}, "--open 46: there are 45 rows; choose one");
    expect({Kind::Open, {}, 45}, "--open 45: the row is not on screen; --scroll row:45 first");
    expect({Kind::Release}, "--release: no finger is on the screen");
    expect({Kind::Press, "search"}, "--press search: no button 搜索 is on the screen");
    expect({Kind::Edit, "off"}, "--edit off: the list is not in edit mode");
    expect({Kind::Tab, "away"}, "done");
    expect({Kind::Scroll}, "--scroll: another tab is shown; --tab back first");
    expect({Kind::Tab, "back"}, "done");
    expect({Kind::Open, {}, 1}, "done");
    expect({Kind::Swipe, {}, 1}, "--swipe 1: a detail is shown; --back first");
    expect({Kind::Back}, "done");
    expect({Kind::Edit, "on"}, "done");
    expect({Kind::Swipe, {}, 1}, "--swipe 1: the list is in edit mode; --edit off first");
}

TEST_F(RecentsCommand, EditModeLastsHalfASecondLonger) {
    Session session(settings("7.1", "4"));
    session.open({ScreenKind::Recents});
    std::ostringstream ignored;
    for (const Step &step : stage::Steps{{Kind::Edit, "on"},
                                         {Kind::Wait, {}, 1, 1s},
                                         {Kind::Edit, "off"},
                                         {Kind::Wait, {}, 1, 499ms},
                                         {Kind::Swipe, {}, 1}}) {
        session.perform(step, ignored);
    }
    EXPECT_THAT(session.tree(), Not(HasSubstr("UIButton #1012")));
    session.wait(1ms);
    session.perform({Kind::Swipe, {}, 4}, ignored);
    EXPECT_THAT(session.tree(), HasSubstr("UIButton #1012"));
}

TEST_F(RecentsCommand, PrintsWhatItOpens) {
    const Outcome outcome = run({"recents", "--ios", "7.1", "--swipe", "1", "--release", "--press",
                                 "mark", "--open", "7", "--press", "correct"});
    EXPECT_EQ(outcome.code, 0) << outcome.err;
    EXPECT_THAT(outcome.out, HasSubstr("opens zequor://mark?17700000061/1402535645\n"
                                       "opens zequor://errorCorrect?4002001818/\n"));
}

}  // namespace
