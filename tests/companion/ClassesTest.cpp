// The companion's classes as other code in the process uses them: by message only.
#include <dlfcn.h>
#include <gmock/gmock.h>

#include "CompanionRun.hpp"

namespace companion {
namespace {

constexpr std::string_view kWorld = R"({
  "contacts": [{"recordId": 2, "name": "周砚", "avatar": "boy.png", "numbers": [
    {"label": "手机", "number": "138-2300-0021"}, {"label": "公司", "number": "0755-01238800"}]}],
  "ownMarks": [{"number": "13100000051", "label": "房产中介"}],
  "brands": [{"number": "4002001818", "name": "云雀速递", "logo": "courier.png"}],
  "partners": [{"id": 5012, "name": "一碗山食堂", "icon": "bowl.png", "ads": ["八折"]}],
  "partnerNumbers": [{"number": "021-01065012", "partner": 5012, "label": "食堂"}],
  "marks": [{"number": "17700000061", "label": "诈骗电话", "count": 37},
            {"number": "13300000069", "label": "培训", "count": 0, "kind": 9, "source": null}],
  "blackList": [{"prefix": "1770"}],
  "microblogs": [{"number": "18600000041", "name": "顾", "avatarType": 1, "boundType": 2}]
})";

class Classes : public test::CompanionRun {
  protected:
    Classes() : CompanionRun(kWorld) {}

    static std::string info(NSString number, std::int32_t direction) {
        return text(objc::send<id(id, std::int32_t, std::int32_t, id)>(
            "ZQNumberIdentityService"_cls,
            "getFormattedInfoFromNumIdentity:displayType:callDirection:originalInfo:"_sel,
            identityOf(number), 2, direction, nullptr));
    }

    static NSObject parsed(NSString number) {
        const NSObject object =
            objc::Owned<NSObject>::adopt(
                objc::send<NSObject(NSString)>(objc::send<id()>("ZQPhoneNumber"_cls, "alloc"_sel),
                                               "initWithOriginNumber:"_sel, number))
                .autorelease();
        objc::send<void()>(object, "parse"_sel);
        return object;
    }
};

TEST_F(Classes, ARunThatCannotBeOpenedLeavesTheOneBefore) {
    EXPECT_THROW(open({folder_ / "none.json", {}, {}}), WorldError);
    EXPECT_THROW(open({folder_ / "world.json", folder_ / "world.json", {}}), StoreError);
    EXPECT_NE(identityOf("17700000061"_ns).get(), nullptr);
    EXPECT_EQ(resourceDir(), folder_ / "pictures");
}

TEST_F(Classes, TheSampleWorldIsThereWhenNoneIsNamed) {
    open({});
    EXPECT_TRUE(store().identity("13570000063"));
    EXPECT_TRUE(logoFile(5012).empty());
}

TEST_F(Classes, IdentitiesCarryTheirRecord) {
    const NSObject mark = identityOf("+86 177 0000 0061"_ns);
    EXPECT_EQ(text(property(mark, "number"_ns)), "17700000061");
    EXPECT_EQ(text(property(mark, "identity"_ns)), "诈骗电话");
    EXPECT_EQ(objc::send<std::int32_t()>(mark, "type"_sel), 7);
    EXPECT_EQ(objc::send<std::int32_t()>(mark, "numOfMark"_sel), 37);
    EXPECT_EQ(text(property(mark, "source"_ns)), "");
    EXPECT_NE(property(mark, "source"_ns).get(), nullptr);
    EXPECT_EQ(property(identityOf("13300000069"_ns), "source"_ns).get(), nullptr);
    EXPECT_EQ(text(property(identityOf("02101065012"_ns), "source"_ns)), "$$");
    EXPECT_EQ(identityOf("66668888"_ns).get(), nullptr);
    EXPECT_EQ(identityOf(nullptr).get(), nullptr);
}

TEST_F(Classes, BrandsHaveTheirNameAndLogoUnderTheExportedKeys) {
    const auto key = [](const char *symbol) {
        return *static_cast<id *>(dlsym(RTLD_DEFAULT, symbol));
    };
    const auto info = property(identityOf("4002001818"_ns), "brandInfo"_ns).as<NSDictionary>();
    EXPECT_EQ(text(info.objectForKey(NSObject(key("kZQBrandServiceBrandNameKey")))), "云雀速递");
    EXPECT_EQ(text(info.objectForKey(NSObject(key("kZQBrandServiceBrandLogoPathKey")))),
              (folder_ / "pictures/courier.png").string());
}

TEST_F(Classes, LinesAreFormattedFromIdentities) {
    EXPECT_EQ(info("17700000061"_ns, 0), "诈骗电话 | 37人标记");
    EXPECT_EQ(info("02101065012"_ns, 0), "一碗山食堂");
    EXPECT_EQ(info("13100000051"_ns, 1), "房产中介 | 我的标记");
    EXPECT_EQ(info("66668888"_ns, 1), "");
}

TEST_F(Classes, StoredAnswersAreFoundAgainAndCounted) {
    const auto identity = make("ZQNumberIdentity"_cls);
    objc::send<void(NSString)>(identity, "setNumber:"_sel, "13000000101"_ns);
    objc::send<void(NSString)>(identity, "setIdentity:"_sel, "装修"_ns);
    objc::send<void(std::int32_t)>(identity, "setType:"_sel, 10);
    objc::send<void(float)>(identity, "setRating:"_sel, 4.5F);
    const auto service = make("ZQCallRecordService"_cls);
    objc::send<void(id)>(service, "insertOrUpdateNumberIdentityWithNumber:"_sel, identity);
    const NSObject found = identityOf("13000000101"_ns);
    EXPECT_EQ(text(property(found, "identity"_ns)), "装修");
    EXPECT_EQ(property(found, "source"_ns).get(), nullptr);
    EXPECT_EQ(objc::send<float()>(found, "rating"_sel), 4.5F);
    objc::send<void(id)>(service, "insertOrUpdateNumberIdentityWithNumber:"_sel, nullptr);
    objc::send<void(NSString, bool)>(
        objc::send<id()>("ZQPingBackService"_cls, "currentService"_sel),
        "asyncDoPingBackCount:immediately:"_sel, "cmkCall_C"_ns, false);
    EXPECT_EQ(store().countOf("cmkCall_C"), 1);
}

TEST_F(Classes, PhoneNumbersKnowNothingBeforeTheyParse) {
    const NSObject number = parsed("+86 138-2300-0021"_ns);
    EXPECT_EQ(text(property(number, "pureNumber"_ns)), "13823000021");
    EXPECT_EQ(text(property(number, "areaName"_ns)), "广东珠海 移动");
    EXPECT_EQ(objc::send<std::int32_t()>(number, "type"_sel), 1);
    EXPECT_EQ(objc::send<std::int32_t()>(parsed("+1 415 555 0132"_ns), "type"_sel), 6);
    EXPECT_EQ(text(property(parsed(nullptr), "pureNumber"_ns)), "");
    const NSString smile = string("138😀");
    const auto half =
        objc::send<NSString(NSUInteger)>(smile, "substringToIndex:"_sel, NSUInteger{4});
    EXPECT_EQ(text(property(parsed(half), "pureNumber"_ns)), "138");
    EXPECT_EQ(
        objc::send<id(NSString)>("ZQPhoneNumber"_cls, "descriptionOfNumber:"_sel, "66668888"_ns),
        nullptr);
    EXPECT_EQ(property(make("ZQPhoneNumber"_cls), "pureNumber"_ns).get(), nullptr);
}

TEST_F(Classes, ContactsAreFoundAndBecomePersons) {
    // Named by strings only, so that the linker would drop it.
    ASSERT_NE(dlopen("libAddressBook.so", RTLD_NOW), nullptr) << dlerror();
    const id service = objc::send<id()>("ZQContactService"_cls, "currentService"_sel);
    EXPECT_TRUE(objc::send<bool(NSString)>(service, "isInAddressBook:"_sel, "075501238800"_ns));
    EXPECT_FALSE(objc::send<bool(NSString)>(service, "isInAddressBook:"_sel, "17700000061"_ns));
    const NSObject person =
        objc::send<NSObject(NSString)>(service, "getPersonWithRecordID:"_sel, "13823000021"_ns);
    EXPECT_EQ(text(objc::send<id()>(person, "name"_sel)), "周砚");
    EXPECT_EQ(objc::send<id(NSString)>(service, "getPersonWithRecordID:"_sel, "110"_ns), nullptr);
}

TEST_F(Classes, PreferencesAreThereOnceTheyAreInitialized) {
    EXPECT_EQ(objc::send<id()>("ZQPreference"_cls, "currentPreference"_sel), nullptr);
    objc::send<void()>("ZQPreference"_cls, "InitializePreferences"_sel);
    const id preference = objc::send<id()>("ZQPreference"_cls, "currentPreference"_sel);
    objc::send<void(bool)>(preference, "setShowNumberArea:"_sel, false);
    EXPECT_FALSE(objc::send<bool()>(preference, "showNumberArea"_sel));
}

TEST_F(Classes, BlackListAndMicroblogs) {
    for (const bool isContact : {false, true}) {
        EXPECT_NE(objc::send<bool(NSString, bool)>("ZQBlackListService"_cls,
                                                   "isCallHittedBlackList:inAddressBook:"_sel,
                                                   "17700000061"_ns, isContact),
                  isContact);
    }
    const auto service = make("ZQWeiboService"_cls);
    id profile = nullptr;
    id content = service;
    const auto fill = [&](NSString number) {
        objc::send<void(NSString, id *, id *)>(service,
                                               "getWeiboInfoWithNumber:outProfile:outContent:"_sel,
                                               number, &profile, &content);
    };
    fill("18600000041"_ns);
    EXPECT_EQ(objc::send<std::int32_t()>(profile, "avatarType"_sel), 1);
    EXPECT_EQ(objc::send<std::int32_t()>(profile, "boundType"_sel), 2);
    EXPECT_EQ(content, nullptr);
    fill("110"_ns);
    EXPECT_EQ(profile, nullptr);
}

}  // namespace
}  // namespace companion
