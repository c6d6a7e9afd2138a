// Which add-ons are loaded, and what is said about broken ones.
#include <filesystem>
#include <fstream>

#include <dlfcn.h>
#include <gmock/gmock.h>

#include "objc/owned.hpp"
#include "substrate/Filter.hpp"
#include "substrate/HookLog.hpp"
#include "substrate/Loader.hpp"

namespace {

namespace fs = std::filesystem;
using substrate::Filter;
using testing::HasSubstr;
using testing::IsEmpty;

class Loader : public testing::Test {
  public:
    Loader() {
        fs::remove_all(folder_);
        fs::create_directories(folder_);
    }
    ~Loader() override { fs::remove_all(folder_); }

  protected:
    fs::path write(const std::string &name, const std::string &content) const {
        std::ofstream(folder_ / name) << content;
        return folder_ / name;
    }

    std::string failure() const {
        try {
            substrate::loadAddOns(folder_);
        } catch (const substrate::LoadError &error) {
            return error.what();
        }
        return "loaded without an error";
    }

    objc::AutoreleasePool pool_;
    fs::path folder_ = fs::path(testing::TempDir()) /
                       testing::UnitTest::GetInstance()->current_test_info()->name();
};

// The test executable has no bundle, so its identifier is the empty text.
constexpr auto kAdmitsUs = R"({ Filter = { Bundles = ( "com.example.other", "" ); }; })";
constexpr auto kAdmitsOthers = R"({ Filter = { Bundles = ( "com.example.other" ); }; })";

TEST_F(Loader, LoadsWhatTheFilterAdmits) {
    fs::copy(SAMPLE_ADD_ON, folder_ / "admitted.so");
    fs::copy(SAMPLE_ADD_ON, folder_ / "kept-out.so");
    fs::copy(SAMPLE_ADD_ON, folder_ / "without-filter.so");
    write("admitted.plist", kAdmitsUs);
    write("kept-out.plist", kAdmitsOthers);
    EXPECT_THAT(substrate::loadAddOns(folder_), testing::ElementsAre(folder_ / "admitted.so"));
    ASSERT_FALSE(substrate::hookLog().empty()) << "its init routine asks for a class in vain";
    EXPECT_EQ(substrate::hookLog().back().outcome, substrate::HookEntry::Outcome::MissingClass);
    EXPECT_EQ(substrate::hookLog().back().className, "SampleClassThatIsNowhere");
}

TEST_F(Loader, KeepsOutLibrariesWithoutLookingAtThem) {
    write("broken.so", "no library");
    write("broken.plist", kAdmitsOthers);
    EXPECT_THAT(substrate::loadAddOns(folder_), IsEmpty());
}

TEST_F(Loader, NamesTheFileThatIsBroken) {
    const auto plist = write("a.plist", kAdmitsUs);
    EXPECT_THAT(failure(), HasSubstr(plist.string() + ": there is no a.so beside it"));
    const auto library = write("a.so", "no library");
    EXPECT_THAT(failure(), HasSubstr(library.string() + ": cannot be loaded"));
    folder_ /= "nowhere";
    EXPECT_THAT(failure(), HasSubstr(folder_.string() + ": cannot be searched"));
}

TEST_F(Loader, FilterIsReadInEveryForm) {
    const auto xml = write("xml.plist", R"(<?xml version="1.0" encoding="UTF-8"?>
<plist version="1.0"><dict><key>Filter</key><dict><key>Bundles</key>
<array><string>com.example.one</string></array></dict></dict></plist>)");
    const Filter filter = Filter::read(xml);
    EXPECT_TRUE(filter.admits("com.example.one"));
    EXPECT_FALSE(filter.admits("com.example.one.more"));
    EXPECT_FALSE(filter.admits(""));
}

TEST_F(Loader, FilterThatIsNoneIsRefused) {
    const struct {
        const char *content;
        const char *complaint;
    } cases[] = {
        {"", "is not a property list"},
        {"{ Filter = ", "is not a property list"},
        {"( 1, 2 )", "has no list of bundles"},
        {"{ Filter = x; }", "has no list of bundles"},
        {"{ Filter = { Bundles = x; }; }", "has no list of bundles"},
    };
    for (const auto &[content, complaint] : cases) {
        const auto file = write("f.plist", content);
        EXPECT_THAT(failure(), HasSubstr(file.string() + ": " + complaint)) << content;
    }
}

}  // namespace
