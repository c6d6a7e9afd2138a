// The store: what it finds, what it adds, and which files it refuses to touch.
#include <optional>
#include <stdexcept>
#include <utility>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "TemporaryFolder.hpp"
#include "companion/store/Store.hpp"

namespace companion {
namespace {

/// What a lookup found; fails the test that expected it when there is nothing.
template <class Record>
Record known(std::optional<Record> found) {
    if (!found) {
        throw std::out_of_range("the lookup found nothing");
    }
    return *std::move(found);
}

World world() { return World::read(DEFAULT_WORLD); }

class StoreInFolder : public testing::Test {
  protected:
    std::filesystem::path file() const { return storeFile(folder_.path()); }

    /// The message with which the folder is refused; the file must come out as it went in.
    std::string refusal() const {
        const std::string before = test::readFile(file());
        std::string message = "accepted";
        try {
            const Store store(folder_.path(), world());
        } catch (const StoreError &error) {
            message = error.what();
        }
        EXPECT_EQ(test::readFile(file()), before);
        EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder_.path()), {}), 1);
        EXPECT_THAT(message, testing::StartsWith(file().string() + ": "));
        EXPECT_THAT(message, testing::EndsWith("; move it away or choose another data folder"));
        return message;
    }

    test::TemporaryFolder folder_;
};

TEST_F(StoreInFolder, RefusesAFileThatIsNoStoreOfItsOwn) {
    const struct {
        const char *complaint;
        void (*damage)(const std::filesystem::path &file);
    } cases[] = {
        {"is damaged or no companion store",
         [](const auto &file) { test::writeFile(file, "not a database at all"); }},
        {"is damaged",
         [](const auto &file) {
             std::filesystem::resize_file(file, std::filesystem::file_size(file) / 2);
         }},
        {"is damaged",
         [](const auto &file) {
             test::writeFile(file, test::readFile(file).replace(4096, 8192, 8192, '\x5A'));
         }},
        {"is a database of another program",
         [](const auto &file) {
             std::filesystem::remove(file);
             Database(file.string()).execute("CREATE TABLE diary (day TEXT)");
         }},
        {"is a companion store of version 7, not 1",
         [](const auto &file) { Database(file.string()).execute("PRAGMA user_version = 7"); }},
    };
    for (const auto &[complaint, damage] : cases) {
        std::filesystem::remove(file());
        {
            const Store store(folder_.path(), world());
        }
        damage(file());
        EXPECT_THAT(refusal(), testing::HasSubstr(complaint));
    }
}

TEST_F(StoreInFolder, SaysWhenAnotherRunUsesIt) {
    {
        const Store store(folder_.path(), world());
    }
    Database other(file().string());
    const Transaction transaction(other);
    try {
        const Store store(folder_.path(), world());
        ADD_FAILURE();
    } catch (const StoreError &error) {
        EXPECT_THAT(error.what(), testing::HasSubstr("is in use by another run"));
    }
}

TEST_F(StoreInFolder, RefusesAFolderThatCannotBe) {
    test::writeFile(folder_ / "plain", "a file");
    for (const auto &place : {folder_ / "plain", folder_ / "plain/inner", folder_ / "plain/a/b"}) {
        try {
            const Store store(place, world());
            ADD_FAILURE() << place;
        } catch (const StoreError &error) {
            EXPECT_THAT(error.what(), testing::StartsWith(place.string() + ": "));
            EXPECT_THAT(error.what(), testing::EndsWith("choose another data folder"));
        }
    }
}

TEST_F(StoreInFolder, StartsEveryRunFromItsWorld) {
    {
        Store store(folder_.path(), world());
        store.count("cmkCall_C");
        store.storeIdentity({.number = "13000000101", .kind = 10, .label = "装修推销"});
        EXPECT_EQ(store.countOf("cmkCall_C"), 1);
        EXPECT_TRUE(store.identity("13000000101"));
    }
    Store again(folder_.path(), world());
    EXPECT_EQ(again.countOf("cmkCall_C"), 0);
    EXPECT_FALSE(again.identity("13000000101"));
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
    EXPECT_EQ(store_.identities().size(), world().identities.size());
    EXPECT_FALSE(store_.identity("66668888"));
    EXPECT_FALSE(store_.identity("' OR 1=1 --"));
}

TEST_F(LoadedStore, RanksAStoredAnswerBelowTheUsersOwnMark) {
    store_.storeIdentity({.number = "17700000061", .kind = 10, .label = "新标签"});
    store_.storeIdentity({.number = "13100000051", .kind = 10, .label = "新标签"});
    EXPECT_EQ(known(store_.identity("17700000061")).label, "新标签");
    EXPECT_EQ(known(store_.identity("13100000051")).label, "房产中介");
    store_.storeIdentity({.number = "17700000061", .kind = 10, .label = "更新", .count = 2});
    EXPECT_EQ(known(store_.identity("17700000061")).count, 2);
}

TEST_F(LoadedStore, FindsContactsByPureNumber) {
    EXPECT_EQ(known(store_.contactWithNumber("075501238800")).name, "周砚");
    EXPECT_EQ(known(store_.contactWithNumber("075501238800")).numbers.size(), 2U);
    EXPECT_EQ(known(store_.contactWithNumber("00442079460018")).avatar, "avatar_cat.png");
    EXPECT_EQ(known(store_.contactWithNumber("18958100072")).wallpaper, "wallpaper_lake.png");
    EXPECT_FALSE(store_.contactWithNumber("17700000061"));
    EXPECT_EQ(store_.contacts().size(), world().contacts.size());
}

TEST_F(LoadedStore, SparesContactsOnlyFromPrefixRules) {
    EXPECT_TRUE(store_.isBlackListed("17700000061", false));
    EXPECT_TRUE(store_.isBlackListed("17700000061", true));
    EXPECT_TRUE(store_.isBlackListed("4002009123", false));
    EXPECT_FALSE(store_.isBlackListed("4002009123", true));
    EXPECT_FALSE(store_.isBlackListed("4002001818", false));
    EXPECT_FALSE(store_.isBlackListed("", false));
}

TEST_F(LoadedStore, KeepsANewPartnerAndFindsCallsBySecond) {
    EXPECT_FALSE(store_.partner(5999));
    store_.putPartner({.id = 5999, .name = "新店", .icon = "a.png", .source = "s"});
    EXPECT_EQ(known(store_.partner(5999)).name, "新店");
    EXPECT_EQ(store_.history("17700000061", 100).front().action, 3);
    EXPECT_EQ(store_.history("17700000061", 1).size(), 1U);
    EXPECT_TRUE(store_.storedCall("17700000061", 1402535645.7));
    EXPECT_FALSE(store_.storedCall("17700000061", 1402535646));
    EXPECT_EQ(known(store_.cloudAnswer("13000000108")).delay, 3.0);
    EXPECT_FALSE(known(store_.cloudAnswer("13000000101")).delay);
}

TEST(EmptyStore, KnowsNothingAndShowsAreas) {
    Store store;
    EXPECT_FALSE(store.identity("13800138000"));
    EXPECT_TRUE(store.contacts().empty());
    EXPECT_TRUE(store.showNumberArea());
}

}  // namespace
}  // namespace companion
