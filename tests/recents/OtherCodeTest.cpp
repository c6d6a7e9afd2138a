// What the recents' class offers to other code in the process, and the add-on itself never sends.
#include "support/Recents.hpp"
#include "support/Views.hpp"
#include "uikit/Foundation.hpp"

namespace {

using objc::send;

class RecentsOtherCode : public test::Recents {
  protected:
    const Class cls = "ZQSystemCallHistoryViewHook"_cls;
};

TEST_F(RecentsOtherCode, MayAskWhatAPersonsTableIsAbout) {
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

TEST_F(RecentsOtherCode, MaySearchForTaggedViewsBelowAView) {
    const auto above = withFrame<UIView>({});
    const auto between = withFrame<UIView>({});
    const auto below = withFrame<UIView>({});
    above->setTag(5);
    above->addSubview(between);
    addTagged(between, below, 5);
    const auto find = [&](UIView view) {
        return send<UIView(UIView, NSInteger)>(cls, "getSubviewOfView:WithTag:"_sel, view, 5);
    };
    EXPECT_EQ(find(above), below.get());
    EXPECT_FALSE(find(below));
    EXPECT_FALSE(find(nullptr));
}

}  // namespace
