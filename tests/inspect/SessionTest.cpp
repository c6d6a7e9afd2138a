// A telephone that is watched: whose its views are, what they are called, what its steps set off.
#include <functional>

#include <nlohmann/json.hpp>

#include "inspect/Views.hpp"
#include "inspect/Watch.hpp"
#include "phone/StageRun.hpp"
#include "stage/DelayedMessages.hpp"

namespace {

using inspect::Happening;
using inspect::Role;
using inspect::View;
using testing::Contains;
using testing::ElementsAre;
using testing::EndsWith;
using testing::IsSupersetOf;
using testing::Not;
using testing::StartsWith;
using Lines = std::vector<std::string>;

void eachView(const View &view, const std::function<void(const View &)> &visit) {
    visit(view);
    for (const View &child : view.children) {
        eachView(child, visit);
    }
}

/// What is seen of the add-on's: each view's text, picture or class, and who touched it.
Lines ofAddOn(const View &root) {
    Lines lines;
    eachView(root, [&](const View &view) {
        if (view.seen && view.ofAddOn) {
            lines.push_back(view.text.value_or(view.image.empty() ? view.className : view.image) +
                            " by " + std::string(view.touched));
        }
    });
    return lines;
}

/// What a person can read and press, as a screen reader would tell it.
Lines spoken(const View &root) {
    Lines lines;
    eachView(root, [&](const View &view) {
        constexpr const char *kRoles[] = {"", "button ", "", "row ", "list ", "tab ", "image "};
        if (view.seen && view.role != Role::None) {
            lines.push_back(kRoles[static_cast<int>(view.role)] + view.name +
                            (view.selected ? " *" : "") + (view.disabled ? " -" : ""));
        }
    });
    return lines;
}

std::string told(const std::vector<Happening> &record) {
    std::string text;
    for (const Happening &happening : record) {
        text += (text.empty() ? "" : "; ") + happening.what;
        for (const std::string &argument : happening.arguments) {
            text += " " + argument;
        }
        text += happening.returned.empty() ? "" : " = " + happening.returned;
        text += happening.inside.empty() ? "" : " {" + told(happening.inside) + "}";
    }
    return text;
}

class Watched : public test::StageRun {
  protected:
    void start(std::string_view ios) {
        inspect::watch();
        stage::DelayedMessages::shared().setListener(&inspect::noteDelayed);
        session_ = std::make_unique<stage::Session>(settings(ios, "4"));
        inspect::watchAddOnClasses();
    }

    View views() const {
        session_->window().layout();
        return inspect::viewTree(session_->window().window());
    }

    stage::Hand &hand() const { return session_->window().hand(); }

    /// Where the first view of that name is seen.
    sim::Point middleOf(const std::string &name) const {
        std::optional<CGRect> place;
        eachView(views(), [&](const View &view) {
            if (!place && view.seen && view.name == name) {
                place = view.shown;
            }
        });
        EXPECT_TRUE(place) << name;
        const CGRect found = place.value_or(CGRect{});
        return {found.origin.x + found.size.width / 2, found.origin.y + found.size.height / 2};
    }

    void tap(const std::string &name) const { hand().tap(middleOf(name)); }

    /// What a tap there sets off.
    std::string toldOfTap(const std::string &name) const {
        inspect::takeHappenings();
        tap(name);
        return told(inspect::takeHappenings());
    }

    objc::AutoreleasePool pool_;
    std::unique_ptr<stage::Session> session_;
};

TEST_F(Watched, TheKeypadIsToldWithTheAddOnsPartOfIt) {
    start("7.1");
    for (const char *const key : {"1", "7, P Q R S", "7, P Q R S"}) {
        tap(key);
    }
    EXPECT_THAT(
        spoken(views()),
        ElementsAre("177", "button 添加到通讯录", "button 1", "button 2, A B C", "button 3, D E F",
                    "button 4, G H I", "button 5, J K L", "button 6, M N O", "button 7, P Q R S",
                    "button 8, T U V", "button 9, W X Y Z", "button *", "button 0, +", "button #",
                    "button 呼叫", "button 删除", "9:41", "tab 个人收藏", "tab 最近通话",
                    "tab 通讯录", "tab 拨号键盘 *", "tab 语音留言"));
    for (const char *const key :
         {"0, +", "0, +", "0, +", "0, +", "0, +", "0, +", "6, M N O", "1"}) {
        tap(key);
    }
    EXPECT_THAT(ofAddOn(views()),
                ElementsAre("UIView by -[PHHandsetDialerLCDView setName:numberLabel:]",
                            "zqr_dial_icon by -[PHHandsetDialerLCDView setName:numberLabel:]",
                            "诈骗电话 by -[PHHandsetDialerLCDView setName:numberLabel:]"));
}

TEST_F(Watched, ARowItsMenuAndItsDetailAreTold) {
    start("7.1");
    tap("最近通话");
    const std::string row = "177 0000 0061, 诈骗电话 | 37人标记, 上午 9:14";
    EXPECT_THAT(spoken(views()),
                IsSupersetOf(Lines{"row " + row, "row 林小满, 手机, 昨天", "button 更多信息",
                                   "button 所有通话 *", "button 未接来电", "button 编辑"}));
    EXPECT_THAT(ofAddOn(views()),
                Contains("诈骗电话 | 37人标记 by -[PHRecentsCell layoutSubviews]"));
    hand().beginDrag(middleOf(row), {-1, 0});
    hand().dragOn({-200, 0}, 8);
    hand().release();
    EXPECT_THAT(ofAddOn(views()),
                IsSupersetOf(Lines{"纠错 by -[UITableViewCellScrollView setContentOffset:]",
                                   "标记 by -[UITableViewCellScrollView setContentOffset:]"}));
    EXPECT_EQ(toldOfTap("标记"),
              "+[ZQSystemCallHistoryViewHook markButtonPressed] "
              "{+[ZQPhoneUtil systemOpenUrl:] "
              "\"zequor://mark?17700000061/1402535645\" "
              "{zequor://mark?17700000061/1402535645}}");
    tap("林小满, 手机, 昨天");  // which only closes the row
    hand().tap(middleOf("更多信息"));
    const View detail = views();
    EXPECT_THAT(spoken(detail),
                IsSupersetOf(Lines{"简介", "button 最近通话", "row 共享联系人", "button 搜索"}));
    EXPECT_THAT(spoken(detail), Not(Contains("row " + row))) << "the list lies behind the detail";
    EXPECT_THAT(ofAddOn(detail), Contains("搜索 by -[ZQGroupButton setIcon:title:]"));
}

TEST_F(Watched, ACallIsToldAndWhatTheCloudSetsOff) {
    start("7.0");
    session_->window().dial("13000000101"_ns);
    EXPECT_THAT(spoken(views()),
                ElementsAre("9:41", "130 0000 0101", "正在呼叫…", "山东济南 联通", "button 静音",
                            "button 拨号键盘", "button 免提", "button 添加通话", "button 视频通话",
                            "button 通讯录", "button 结束"));
    inspect::takeHappenings();
    session_->wait(std::chrono::seconds(2));
    const std::string record = told(inspect::takeHappenings());
    EXPECT_THAT(
        record,
        StartsWith("-[ZQNumberIdentityService deliver]; -[ZQDialCloudQueryService "
                   "numberIdentityService:didGetMarkInfoFromCloud:error:] "
                   "{+[ZQPingBackService currentService] = <ZQPingBackService>; "
                   "-[ZQPingBackService asyncDoPingBackCount:immediately:] \"cmkCall_C\" NO; "));
    EXPECT_THAT(record, EndsWith("+[ZQIPCService postMsg:withInfo:] "
                                 "\"msgSystemProcessReloadAllNum\" <GSDictionary> "
                                 "{msgSystemProcessReloadAllNum; "
                                 "-[ZQDialCloudQueryService handleReloadAllNumbers:]}}"));
}

/// The first object of that name, without its number and what is in it.
nlohmann::json withName(const nlohmann::json &view, const std::string &name) {
    if (view.value("name", "") == name) {
        nlohmann::json found = view;
        found.erase("id");
        found.erase("children");
        return found;
    }
    nlohmann::json found;
    for (const nlohmann::json &child : view["children"]) {
        found = found.is_null() ? withName(child, name) : found;
    }
    return found;
}

TEST_F(Watched, TreeAndRecordAreWrittenForThePage) {
    start("7.1");
    tap("1");
    using nlohmann::json;
    const json root = json::parse(inspect::viewsJson(session_->window().window()));
    EXPECT_EQ(withName(root, "1"), json::parse(R"({
        "class": "UILabel", "frame": [12, 2, 296, 42], "place": [12, 22, 296, 42], "seen": true,
        "owner": "phone", "text": "1", "color": "#000000", "font": "HelveticaNeue-Light 36",
        "role": "text", "name": "1"})"));
    EXPECT_EQ(withName(root, "拨号键盘"), json::parse(R"({
        "class": "PhoneTabBarButton", "frame": [192, 0, 64, 49], "place": [192, 519, 64, 49],
        "seen": true, "owner": "phone", "role": "tab", "name": "拨号键盘", "selected": true})"));
    const json record =
        json::parse(inspect::happeningsJson({{.kind = Happening::Kind::Method,
                                              .what = "-[A b]",
                                              .micros = 7,
                                              .thread = "main",
                                              .inside = {{.kind = Happening::Kind::Asked,
                                                          .what = "+[C d:]",
                                                          .arguments = {"1"},
                                                          .returned = "nil",
                                                          .thread = "main"}}},
                                             {.kind = Happening::Kind::Message, .what = "m"},
                                             {.kind = Happening::Kind::Later, .what = "l"},
                                             {.kind = Happening::Kind::Address, .what = "a"},
                                             {.what = "\xff"}}));
    EXPECT_EQ(record, json::parse(R"([
        {"kind": "method", "name": "-[A b]", "micros": 7, "thread": "main", "inside": [
            {"kind": "asked", "what": "+[C d:]", "arguments": ["1"], "returned": "nil",
             "micros": 0, "thread": "main", "inside": []}]},
        {"kind": "message", "what": "m"}, {"kind": "later", "what": "l"},
        {"kind": "address", "what": "a"}, {"kind": "note", "what": "\ufffd"}])"));
}

}  // namespace
