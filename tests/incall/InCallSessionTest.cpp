// The in-call screen as a person meets it: calls come, are answered and end on the simulated
// telephone, with the companion's own answers and the add-on as it is built.
#include <fstream>

#include "objc/Ivar.hpp"
#include "phone/StageRun.hpp"
#include "phone/incall/InCallController.hpp"
#include "support/LiveObjects.hpp"

namespace {

using namespace std::chrono_literals;

struct Place {
    stage::Model model;
    phone::Display display;
    CGFloat labelPoints;  // of the line under the name, as the telephone wants it
};

void PrintTo(const Place &place, std::ostream *out) {
    *out << place.model.slug()
         << (place.display == phone::Display::View ? " LCD view" : " LCD field");
}

constexpr Place kPlaces[] = {
    {{"7.0", "4"}, phone::Display::View, 16},
    {{"7.0", "3.5"}, phone::Display::Field, 12},
    {{"7.1", "4"}, phone::Display::Field, 14},
    {{"7.1", "3.5"}, phone::Display::View, 14},
};

class InCallSession : public test::StageRun, public testing::WithParamInterface<Place> {
  protected:
    InCallSession() { session_.open({stage::ScreenKind::InCall, GetParam().display}); }

    void perform(const std::string &step) { StageRun::perform(session_, {step}); }
    std::string said() { return session_.lineText(); }
    bool says(const std::string &text) { return said().find(text) != std::string::npos; }

    stage::Session session_{settings(GetParam().model.ios, GetParam().model.screen)};
};

INSTANTIATE_TEST_SUITE_P(Displays, InCallSession, testing::ValuesIn(kPlaces),
                         [](const auto &place) {
                             std::string name = testing::PrintToString(place.param);
                             std::erase_if(name, [](char c) {
                                 return !std::isalnum(static_cast<unsigned char>(c));
                             });
                             return name;
                         });

TEST_P(InCallSession, TheCloudsAnswerArrivesDuringAnOutgoingCall) {
    perform("outgoing 13000000101");
    session_.wait(3s);
    perform("layout");
    EXPECT_TRUE(says("装修推销 | 46人标记")) << said();
    perform("end 1");
    perform("incoming 13000000102");
    session_.wait(3s);
    perform("layout");
    EXPECT_FALSE(says("装修推销") || says("润禾物业管理处"))
        << "an incoming call is not asked about: " << said();
}

TEST_P(InCallSession, APartnersLogoArrivesAndShowsAtTheNextLayoutPass) {
    perform("outgoing 021-01065012");
    EXPECT_TRUE(says("一碗山食堂"));
    session_.picture().savePng(folder_ / "before.png");
    session_.wait(2s);
    perform("layout");
    session_.picture().savePng(folder_ / "after.png");
    const auto bytes = [&](const char *name) {
        std::ifstream file(folder_ / name, std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(file), {});
    };
    EXPECT_NE(bytes("before.png"), bytes("after.png"));
}

TEST_P(InCallSession, ASmallLabelOfAStrangersIsAsLargeAsTheDescriptionOnAShortScreen) {
    const bool isShort = std::string_view(GetParam().model.screen) == "3.5";
    for (const auto &[number, points] : {std::pair{"13800130011", GetParam().labelPoints},
                                         {"17700000061", isShort ? 14 : GetParam().labelPoints}}) {
        perform(std::string("incoming ") + number);
        perform("layout");
        const auto label = objc::read<UIView>(session_.inCall()->displayView(), "_labelView"_ivar);
        EXPECT_EQ(objc::read<CGFloat>(label, "_fontSize"_ivar), points) << number;
        perform("end 1");
    }
}

TEST_P(InCallSession, AThousandCallsLeaveNoObjectBehind) {
    const auto call = [&](int number) {
        static constexpr std::array kCallers = {"17700000061",  "021-01065012", "15000000031",
                                                "400-200-1818", "13800130011",  "+1 415 555 0132"};
        const objc::AutoreleasePool pool;
        const std::string caller = kCallers[static_cast<size_t>(number) % kCallers.size()];
        perform((number % 2 == 0 ? "incoming " : "outgoing ") + caller);
        perform("answer");
        session_.wait(100ms);
        if (number % 4 == 0) {
            perform("second 18900000062");
            perform("end 1");
        }
        perform("end 1");
    };
    const auto countSettled = [&] {
        const objc::AutoreleasePool pool;
        session_.wait(5s);
        // One number is remembered as the last that the cloud was asked about: always the same
        // here.
        perform("outgoing 13000000101");
        session_.wait(5s);
        perform("end 1");
        session_.wait(5s);
        return test::liveObjects();
    };
    test::liveObjects();
    for (int i = 0; i < 60; ++i) {
        call(i);
    }
    countSettled();  // the cloud's answer is stored, and from now on the number is known
    const int before = countSettled();
    for (int i = 0; i < 1000; ++i) {
        call(i);
    }
    EXPECT_EQ(countSettled(), before);
}

}  // namespace
