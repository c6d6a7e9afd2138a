// The header of a stranger's call details as a person sees it.
#include <filesystem>
#include <map>

#include "phone/Resources.hpp"
#include "support/RecentsScreen.hpp"
#include "uikit/Finger.hpp"
#include "uikit/Foundation.hpp"

namespace {

using objc::send;
using test::isShown;
using test::kNoon;
using test::textOf;

constexpr NSInteger kDescription = 1001, kLogo = 1002, kProduct = 1004, kWarning = 1006;

class DetailHeader : public test::RecentsScreen {
  protected:
    void open(NSInteger row) {
        list().back();
        ASSERT_TRUE(list().openDetail(row));
        layOut();
    }
    void start(const std::vector<phone::RecentCallFacts> &calls) {
        test::RecentsScreen::start("7.1", calls);
    }
    phone::ABContactHeaderView &header() const { return *list().detail()->headerView(); }
    UIView view(NSInteger tag) const { return UIView(header()).viewWithTag(tag); }
    CGFloat personY() const { return header().personHeaderView().frame().origin.y; }
    std::string description() const { return textOf(view(kDescription)); }
    CGFloat height(NSInteger section) const {
        return send<CGFloat(NSObject, NSInteger)>(*list().detail(),
                                                  "tableView:heightForHeaderInSection:"_sel,
                                                  list().detail()->contactView(), section);
    }
    UIView spacer(NSInteger section) const {
        return send<UIView(NSObject, NSInteger)>(*list().detail(),
                                                 "tableView:viewForHeaderInSection:"_sel,
                                                 list().detail()->contactView(), section);
    }
    /// Those that are seen, from the left, each with its place.
    std::map<CGFloat, UIView> buttons() const {
        std::map<CGFloat, UIView> found;
        const NSArray views = UIView(header()).subviews();
        for (NSUInteger i = 0; i < views.count(); ++i) {
            const auto button = views.objectAtIndex(i).as<UIView>();
            if (button.isKindOfClass("ZQGroupButton"_cls) && isShown(button)) {
                found[button.frame().origin.x] = button;
            }
        }
        return found;
    }
    std::string titles() const {
        std::string all;
        for (const auto &[x, button] : buttons()) {
            all += test::readable(send<NSString()>(button, "currentTitle"_sel)) + " ";
        }
        return all;
    }
};

TEST_F(DetailHeader, ExplainsTheNumberAndOffersItsActions) {
    using enum IdentityKind;
    stub.descriptions = {{"1", "四川成都"}, {"4", "加拿大"}, {"5", "四川"}};
    stub.identities = {{"2", {.label = "诈骗电话", .type = UserMark, .numOfMark = 37}},
                       {"3", {.label = "推销", .type = UserMark, .numOfMark = 1}},
                       {"4", {.number = "4", .type = Foreign}},
                       {"6", {.type = Foreign}},
                       {"7", {.label = "", .type = UserMark, .numOfMark = 0}}};
    stub.histories = {{"1", {1, 0}}, {"2", {2}}, {"4", {2}}, {"8", {1}}};
    const struct {
        const char *number, *tagline;
        const char *description, *buttons;
        CGFloat personY, height, buttonsY;
    } cases[] = {
        {"1", "", "四川成都", "标记 搜索 ", 167, 71, 112},
        {"2", "", "诈骗电话 | 37位用户标记", "纠错 标记 搜索 ", 167, 71, 112},
        {"3", "", "推销", "纠错 搜索 ", 167, 71, 112},
        {"4", "", "加拿大", "标记 搜索 ", 187, 91, 132},
        {"5", "云南", "云南  四川", "搜索 ", 187, 71, 112},
        {"6", "", "(nil)", "搜索 ", 187, 58, 115},
        {"7", "", "", "搜索 ", 167, 58, 112},
        {"8", "", "(nil)", "搜索 ", 154, 58, 95},
        // The platform's words for a missing text, as the format has it
        {"9", "云南", "云南  (null)", "搜索 ", 187, 58, 95},
        // Two tones leave no room for the tag line.
        {"2", "云南", "诈骗电话 | 37位用户标记", "纠错 标记 搜索 ", 187, 71, 112},
    };
    std::vector<phone::RecentCallFacts> calls;
    calls.reserve(std::size(cases));
    for (const auto &one : cases) {
        calls.push_back({.number = one.number, .label = one.tagline, .date = kNoon});
    }
    start(calls);
    for (NSInteger row = 0; row < std::ssize(cases); ++row) {
        SCOPED_TRACE(row);
        const auto &one = cases[row];
        open(row);
        EXPECT_EQ(description(), one.description);
        EXPECT_EQ(titles(), one.buttons);
        EXPECT_EQ(personY(), one.personY);
        EXPECT_EQ(height(0), one.height);
        EXPECT_EQ(spacer(0).frame(), rect(0, 0, 320, one.height));
        EXPECT_EQ(buttons().begin()->second.frame().origin.y, one.buttonsY);
        EXPECT_EQ(isShown(view(kWarning)), stub.identities[one.number].type == Foreign);
        EXPECT_TRUE(isShown(view(kLogo)) && isShown(view(kDescription)));
        EXPECT_EQ(textOf(view(kProduct)), "Zequor");
        EXPECT_EQ(header().nameLabel().frame().origin.y, 53);
        EXPECT_FALSE(isShown(header().taglineLabel()));
        EXPECT_EQ(height(1), 35) << "the telephone's own";
        EXPECT_FALSE(spacer(1));
    }
}

TEST_F(DetailHeader, LaterPassesRenewTheTextAndLeaveTheButtons) {
    stub.identities["1"] = {.label = "推销", .type = IdentityKind::UserMark, .numOfMark = 1};
    start({{.number = "1", .date = kNoon}});
    open(0);
    const NSUInteger views = UIView(header()).subviews().count();
    const auto firstButtons = buttons();
    stub.identities.clear();
    stub.descriptions["1"] = "四川成都";
    test::layOut(UIView(header()));
    EXPECT_EQ(description(), "四川成都");
    EXPECT_EQ(UIView(header()).subviews().count(), views);
    EXPECT_EQ(titles(), "纠错 搜索 ");
    EXPECT_EQ(buttons(), firstButtons);
}

TEST_F(DetailHeader, ButtonsActOnTheNumberAndTheCall) {
    stub.identities["1"] = {.label = "推销", .type = IdentityKind::UserMark, .numOfMark = 2};
    stub.histories["1"] = {2};
    start({{.number = "1", .date = kNoon}});
    open(0);
    for (const auto &[x, button] : buttons()) {
        sim::tap(sim::instance<SimView>(button));
    }
    ASSERT_EQ(stub.openedLinks.size(), 3U);
    EXPECT_EQ(stub.openedLinks[0], "zequor://errorCorrect?1/");
    EXPECT_EQ(stub.openedLinks[1], "zequor://mark?1/1402545600");
    EXPECT_NE(stub.openedLinks[2].find("&keyword=1&"), std::string::npos);
}

TEST_F(DetailHeader, IsForStrangersWithANumberOnly) {
    stub.descriptions["1"] = "四川";
    start({{.number = "1", .name = "周砚", .date = kNoon},
           {.number = "luna@example.org", .date = kNoon},
           {.date = kNoon},
           {.number = "2", .date = kNoon}});
    for (const NSInteger row : {0, 1, 2}) {
        open(row);
        EXPECT_FALSE(view(kProduct)) << row;
        EXPECT_EQ(header().personHeaderView().frame().origin.y, 96) << "the telephone's own";
    }
    list().back();
    ASSERT_TRUE(list().openDetail(3));
    header().setEditing(true);
    layOut();
    EXPECT_FALSE(view(kProduct));
}

TEST_F(DetailHeader, WhereTheCompanionRaisesTheTelephonesOwnStands) {
    start({{.number = "1", .date = kNoon}});
    stub.raises = true;
    open(0);
    EXPECT_EQ(height(0), 0);
    EXPECT_FALSE(spacer(0));
    EXPECT_TRUE(header().nameLabel());
}

TEST_F(DetailHeader, AFirstPassThatFailsIsUndoneAndTheNextOneBeginsAnew) {
    stub.identities["1"] = {.label = "推销", .type = IdentityKind::UserMark, .numOfMark = 1};
    start({{.number = "1", .label = "手机", .date = kNoon}});
    for (const char *const message :
         {"getRecordForNumber:atSysDate:", "getAllCallHistoryByPhoneNumber:fromRecentCalls:",
          "getAppResourceDir"}) {
        stub.raisesAt = message;
        open(0);
        EXPECT_FALSE(view(kDescription)) << message;
        EXPECT_EQ(titles(), "") << message;
        EXPECT_TRUE(isShown(header().taglineLabel())) << message;
        EXPECT_EQ(header().nameLabel().frame().origin.y, 36) << message;
        EXPECT_EQ(personY(), 116) << message;
        stub.raisesAt = {};
        test::layOut(UIView(header()));
        EXPECT_EQ(titles(), "纠错 搜索 ") << message;
        EXPECT_EQ(description(), "手机  推销") << message;
    }
}

TEST_F(DetailHeader, RepeatsATagLineOfNumbersFromAbroadOnLaterSystems) {
    stub.foreignNumbers = {"2"};
    stub.descriptions = {{"1", "四川"}, {"2", "加拿大"}};
    test::RecentsScreen::start(
        "8.0", {{.number = "1", .label = "云南"}, {.number = "2", .label = "北美"}});
    const Class cls = "ZQSystemCallHistoryViewHook"_cls;
    NSInteger row = 0;
    for (const char *const expected : {"四川", "北美  加拿大"}) {
        open(row++);
        const NSObject contact = header().contact();
        send<void(NSObject)>(cls, "updatePhoneNumberFromContact:"_sel, contact);
        send<void(UIView, NSObject)>(cls, "addNumberInfoToHeaderView:withContact:"_sel,
                                     UIView(header()), contact);
        EXPECT_EQ(description(), expected);
        EXPECT_EQ(view(kLogo).frame(), rect(15, 22, 14, 14));
    }
}

TEST_F(DetailHeader, TheLogoIsLoadedOnceItIsThere) {
    const auto icon = [] {
        return send<NSObject()>("ZQSystemCallHistoryViewHook"_cls, "getRecordIcon"_sel);
    };
    EXPECT_FALSE(icon());
    stub.resourceDir = testing::TempDir() + "/resources-of-the-detail-header";
    std::filesystem::create_directories(stub.resourceDir);
    const auto file = stub.resourceDir + "/icon_zqrLogo_in_systemCallHistoryDetailsView.png";
    std::filesystem::copy_file(phone::pictureFolder() / "key_call.png", file,
                               std::filesystem::copy_options::overwrite_existing);
    const NSObject loaded = icon();
    EXPECT_TRUE(loaded);
    std::filesystem::remove_all(stub.resourceDir);
    EXPECT_EQ(icon(), loaded);
}

TEST_F(DetailHeader, OtherCodeMayAskWhatAPersonsTableIsAbout) {
    const Class cls = "ZQSystemCallHistoryViewHook"_cls;
    stub.persons = {{"1", {"", "0871-1", "2"}}, {"3", {}}};
    const auto person = [](NSString number) {
        return send<NSObject(NSString)>(
            send<NSObject()>("ZQContactService"_cls, "currentService"_sel),
            "getPersonWithRecordID:"_sel, number);
    };
    const auto isTarget = [&](NSObject source) {
        return send<bool(NSObject)>(cls, "isTargetABPersonTableViewDataSource:"_sel, source);
    };
    const auto number = [&](NSObject source) {
        return test::readable(
            send<NSString(NSObject)>(cls, "getNumberFromDataSource:"_sel, source));
    };
    const auto source = objc::create<NSMutableDictionary>();
    EXPECT_FALSE(isTarget(source));
    source->setObject("any"_ns, "personHeaderView"_ns);
    EXPECT_TRUE(isTarget(source));
    source->setObject(NSNumber::withBool(true), "allowsEditing"_ns);
    EXPECT_FALSE(isTarget(source));
    source->setObject("no answer"_ns, "personHeaderView"_ns);
    source->setObject(objc::create<NSMutableDictionary>(), "allowsEditing"_ns);
    EXPECT_FALSE(isTarget(source)) << "what is no boolean raises";
    EXPECT_EQ(number(source), "(nil)");
    const id people[] = {person("3"_ns), person("1"_ns)};
    source->setObject(sim::array(people), "people"_ns);
    EXPECT_EQ(number(source), "0871-1");
    source->setObject("nobody"_ns, "people"_ns);
    for (const NSObject without : {NSObject(source.get()), NSObject(), NSObject("no source"_ns)}) {
        EXPECT_EQ(number(without), "(nil)");
        EXPECT_FALSE(isTarget(without));
    }
}

}  // namespace
