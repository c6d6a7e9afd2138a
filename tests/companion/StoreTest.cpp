// The store: what it finds, what it adds, and which files it refuses to touch.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "companion/TemporaryFolder.hpp"
#include "companion/store/Store.hpp"

namespace companion {
namespace {

namespace fs = std::filesystem;
using testing::EndsWith;
using testing::Field;
using testing::HasSubstr;
using testing::Optional;
using testing::StartsWith;

const World &world() {
    static const World world = World::read(DEFAULT_WORLD);
    return world;
}

class StoreInFolder : public testing::Test {
  protected:
    /// The message with which a data folder is refused.
    static std::string refusal(const fs::path &folder) {
        try {
            const Store store(folder, world());
        } catch (const StoreError &error) {
            return error.what();
        }
        return "accepted";
    }

    test::TemporaryFolder folder_;
    const fs::path file_ = storeFile(folder_.path());
};

TEST_F(StoreInFolder, RefusesAFileThatIsNoStoreOfItsOwn) {
    const struct {
        const char *complaint;
        void (*damage)(const fs::path &file);
    } cases[] = {
        {"is damaged or no companion store",
         [](const auto &file) { test::writeFile(file, "not a database at all"); }},
        {"is damaged", [](const auto &file) { fs::resize_file(file, fs::file_size(file) / 2); }},
        {"is damaged",
         [](const auto &file) {
             test::writeFile(file, test::readFile(file).replace(4096, 8192, 8192, '\x5A'));
         }},
        {"is a database of another program",
         [](const auto &file) {
             fs::remove(file);
             Database(file.string()).execute("CREATE TABLE diary (day TEXT)");
         }},
        {"is a companion store of version 7, not 1",
         [](const auto &file) { Database(file.string()).execute("PRAGMA user_version = 7"); }},
    };
    for (const auto &[complaint, damage] : cases) {
        fs::remove(file_);
        EXPECT_EQ(refusal(folder_.path()), "accepted");
        damage(file_);
        const std::string before = test::readFile(file_);
        const std::string message = refusal(folder_.path());
        EXPECT_THAT(message, StartsWith(file_.string() + ": " + complaint));
        EXPECT_THAT(message, EndsWith("; move it away or choose another data folder"));
        EXPECT_EQ(test::readFile(file_), before);
        EXPECT_EQ(std::distance(fs::directory_iterator(folder_.path()), {}), 1);
    }
}

TEST_F(StoreInFolder, RefusesAPlaceThatItCannotHaveToItself) {
    test::writeFile(folder_ / "plain", "a file");
    for (const auto &place : {folder_ / "plain", folder_ / "plain/inner", folder_ / "plain/a/b"}) {
        EXPECT_THAT(refusal(place), StartsWith(place.string() + ": "));
        EXPECT_THAT(refusal(place), EndsWith("choose another data folder"));
    }
    EXPECT_EQ(refusal(folder_.path()), "accepted");
    Database other(file_.string());
    other.execute("BEGIN IMMEDIATE");
    EXPECT_THAT(refusal(folder_.path()), HasSubstr("is in use by another run"));
}

TEST_F(StoreInFolder, StartsEveryRunFromItsWorld) {
    {
        Store store(folder_.path(), world());
        store.count("cmkCall_C");
        store.storeIdentity({.number = "13000000101", .kind = 10, .label = "装修推销"});
        EXPECT_EQ(store.countOf("cmkCall_C"), 1);
        store.startOver();
        EXPECT_EQ(store.countOf("cmkCall_C"), 0);
        EXPECT_FALSE(store.identity("13000000101"));
        EXPECT_EQ(store.identities().size(), world().identities.size());
        store.count("cmkCall_C");
    }
    Store again(folder_.path(), world());
    EXPECT_EQ(again.countOf("cmkCall_C"), 0);
    EXPECT_EQ(again.identities().size(), world().identities.size());
}

class LoadedStore : public testing::Test {
  protected:
    LoadedStore() { store_.load(world()); }
    Store store_;
};

TEST_F(LoadedStore, GivesIdentitiesBackWhole) {
    for (const Identity &identity : world().identities) {
        EXPECT_EQ(store_.identity(identity.number), identity) << identity.number;
    }
    EXPECT_FALSE(store_.identity("' OR 1=1 --"));
    EXPECT_TRUE(Store().showNumberArea()) << "a world that does not say";
}

TEST_F(LoadedStore, RanksAStoredAnswerBelowTheUsersOwnMark) {
    const auto label = [this](auto number) {
        return store_.identity(number).value_or(Identity{}).label;
    };
    for (const char *const answer : {"新标签", "更新"}) {
        store_.storeIdentity({.number = "17700000061", .kind = 10, .label = answer});
        store_.storeIdentity({.number = "13100000051", .kind = 10, .label = answer});
        EXPECT_EQ(label("17700000061"), answer);
        EXPECT_EQ(label("13100000051"), "房产中介");
    }
}

TEST_F(LoadedStore, FindsWhatBelongsToANumber) {
    EXPECT_THAT(store_.contactWithNumber("075501238800"),
                Optional(Field(&Contact::numbers, testing::SizeIs(2))));
    EXPECT_THAT(store_.contactWithNumber("00442079460018"),
                Optional(Field(&Contact::avatar, "avatar_cat.png")));
    EXPECT_THAT(store_.contactWithNumber("18958100072"),
                Optional(Field(&Contact::wallpaper, "wallpaper_lake.png")));
    EXPECT_FALSE(store_.contactWithNumber("17700000061"));
    EXPECT_EQ(store_.contacts().size(), world().contacts.size());
    EXPECT_EQ(store_.history("17700000061", 100).front().action, 3);
    EXPECT_EQ(store_.history("17700000061", 1).size(), 1U);
    EXPECT_TRUE(store_.storedCall("17700000061", 1402535645.7));
    EXPECT_FALSE(store_.storedCall("17700000061", 1402535646));
    EXPECT_THAT(store_.cloudAnswer("13000000108"), Optional(Field(&CloudAnswer::delay, 3.0)));
    EXPECT_THAT(store_.cloudAnswer("13000000101"),
                Optional(Field(&CloudAnswer::delay, std::nullopt)));
    EXPECT_FALSE(store_.partner(5999));
    store_.putPartner({.id = 5999, .name = "新店", .icon = "a.png", .source = "s"});
    EXPECT_THAT(store_.partner(5999), Optional(Field(&Partner::name, "新店")));
}

TEST_F(LoadedStore, SparesContactsOnlyFromPrefixRules) {
    for (const bool isContact : {false, true}) {
        EXPECT_TRUE(store_.isBlackListed("17700000061", isContact)) << "the number itself";
        EXPECT_EQ(store_.isBlackListed("4002009123", isContact), !isContact);
        EXPECT_FALSE(store_.isBlackListed("4002001818", isContact));
    }
    EXPECT_FALSE(store_.isBlackListed("", false));
}

}  // namespace
}  // namespace companion
