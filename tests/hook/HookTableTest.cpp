// Which methods are replaced on which system, in which order, and what happens elsewhere: nothing.
#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include <dlfcn.h>
#include <gtest/gtest.h>

#include "stage/MainBundle.hpp"
#include "substrate/HookLog.hpp"
#include "support/Dialer.hpp"

namespace {

using Rows = std::vector<std::string>;

const Rows kDialer = {
    "DialerController viewWillAppear:",
    "DialerController viewWillDisappear:",
    "DialerController newPersonViewController:didCompleteWithNewPerson:",
    "PHHandsetDialerLCDView setName:numberLabel:",
    "PHHandsetDialerLCDView touchesBegan:withEvent:",
    "PHHandsetDialerLCDView touchesCancelled:withEvent:",
};
const Rows kInCall = {
    "TUTelephonyCall initWithCall:",
    "TUTelephonyCall dealloc",
    "InCallLCDField layoutSubviews",
    "InCallLCDView layoutSubviews",
    "InCallController _callStatusChangedNotification:",
};
const Rows kInCall70 = {"TPLCDTextView setCenterText:",
                        "TPWallpaperView setContactImage:animated:"};
const Rows kShortScreen = {"TPLCDTextView setLCDTextFont:"};
const Rows kRecents7 = {
    "PhoneViewController viewWillAppear:",
    "PHRecentsViewController showCallDetail:animate:",
    "PHRecentsCell layoutSubviews",
    "ABContactViewController tableView:heightForHeaderInSection:",
    "ABContactViewController tableView:viewForHeaderInSection:",
    "ABContactHeaderView layoutSubviews",
    "PHRecentsCell setEditing:animated:",
    "PHRecentsViewController setEditing:animated:",
    "PHRecentsCell scrollViewWillEndDragging:withVelocity:targetContentOffset:",
    "UITableViewCellScrollView setContentOffset:",
};
const Rows kRecents8 = {"PHRecentsViewController viewWillAppear:", "PHRecentsCell layoutSubviews"};

/// What the platform's classes only inherit; theirs is added.
const Rows kInherited = {
    "PHHandsetDialerLCDView touchesCancelled:withEvent:",
    "InCallLCDField layoutSubviews",
    "PhoneViewController viewWillAppear:",
    "PHRecentsCell layoutSubviews",
    "ABContactHeaderView layoutSubviews",
    "PHRecentsCell scrollViewWillEndDragging:withVelocity:targetContentOffset:",
};

Rows operator+(Rows head, const Rows &tail) {
    head.insert(head.end(), tail.begin(), tail.end());
    return head;
}

Rows installed() {
    Rows rows;
    for (const substrate::HookEntry &entry : substrate::hookLog()) {
        if (entry.outcome == substrate::HookEntry::Outcome::Replaced ||
            entry.outcome == substrate::HookEntry::Outcome::Added) {
            rows.push_back(entry.className + " " + entry.selector);
        }
    }
    return rows;
}

/// The name a replacement is exported under: two of the dialer's drop the last underscore.
std::string exportedName(const substrate::HookEntry &entry) {
    std::string name = "replace_" + entry.className + "_" + entry.selector;
    std::ranges::replace(name, ':', '_');
    if (entry.className == "DialerController" && entry.selector.starts_with("viewWill")) {
        name.pop_back();
    }
    return name;
}

struct Expectation {
    stage::Model model;
    Rows rows;
};

void PrintTo(const Expectation &expectation, std::ostream *out) {
    *out << expectation.model.slug();
}

class HookTable : public testing::TestWithParam<Expectation> {};

INSTANTIATE_TEST_SUITE_P(
    Phones, HookTable,
    testing::Values(Expectation{{"7.0", "3.5"},
                                kRecents7 + kInCall + kInCall70 + kShortScreen + kDialer},
                    Expectation{{"7.0", "4"}, kRecents7 + kInCall + kInCall70 + kDialer},
                    Expectation{{"7.1", "3.5"}, kRecents7 + kInCall + kShortScreen + kDialer},
                    Expectation{{"7.1", "4"}, kRecents7 + kInCall + kDialer},
                    Expectation{{"8.0", "4"}, kRecents8}));

TEST_P(HookTable, IsInstalledInOrder) {
    const test::Dialer phone({.model = GetParam().model});
    EXPECT_EQ(installed(), GetParam().rows) << "the lists in " __FILE__ " are the table's rows";
    for (const substrate::HookEntry &entry : substrate::hookLog()) {
        if (entry.outcome != substrate::HookEntry::Outcome::MissingClass) {
            EXPECT_EQ(entry.replacement, exportedName(entry));
            EXPECT_TRUE(entry.saved);
            EXPECT_EQ(entry.outcome == substrate::HookEntry::Outcome::Added,
                      std::ranges::count(kInherited, entry.className + " " + entry.selector) > 0)
                << entry.className << " " << entry.selector
                << ": kInherited lists what the class in "
                << "simulator/phone only inherits; is that so on a phone?";
        }
    }
}

TEST(Hooks, OfAMissingClassAreSkippedAndTheOthersInstalled) {
    const test::Dialer phone({.model = {"7.1", "4"}, .withoutClass = "ABContactHeaderView"});
    Rows expected = kRecents7 + kInCall + kDialer;
    std::erase(expected, "ABContactHeaderView layoutSubviews");
    EXPECT_EQ(installed(), expected);
}

TEST(Hooks, OfTheDialerAreInstalledOnceOnly) {
    const test::Dialer phone({.model = {"7.1", "4"}});
    const auto before = installed().size();
    objc::send<void()>("ZQDialNumberInputUIHook"_cls, "initializeHook"_sel);
    objc::send<void()>("ZQDialWaitUIHook"_cls, "initializeHook"_sel);
    EXPECT_EQ(installed().size(), before);
}

TEST(Hooks, OfTheRecentsAreInstalledAgainWhenAskedAgain) {
    // No hooked method may be called from here on: each now calls itself.
    {
        const test::Dialer phone({.model = {"8.0", "4"}});
        objc::send<void()>("ZQSystemCallHistoryViewHook"_cls, "InitializeHook"_sel);
    }
    EXPECT_EQ(installed(), kRecents8 + kRecents8);
}

/// Into a process of that identifier; whether it gave the library entry.
bool letsIn(const char *identifier) {
    const objc::AutoreleasePool pool;
    stage::setMainBundleIdentifier(identifier);
    EXPECT_NE(dlopen(ZQDIAL_LIBRARY, RTLD_NOW), nullptr) << dlerror();
    return objc::findClass("ZQDialNumberInputUIHook");
}

class ClosedGate : public testing::TestWithParam<const char *> {};
INSTANTIATE_TEST_SUITE_P(Processes, ClosedGate,
                         testing::Values("", "com.apple.mobilephon", "com.apple.mobilephone "));

TEST_P(ClosedGate, LeavesAForeignProcessAlone) {
    EXPECT_FALSE(letsIn(GetParam()));
    EXPECT_EQ(objc::findClass("ZQDialWaitUIHook"), nullptr);
    EXPECT_EQ(objc::findClass("ZQSystemCallHistoryViewHook"), nullptr);
    EXPECT_TRUE(substrate::hookLog().empty());
}

TEST(OpenGate, ExportsTheConferenceFlagAtZero) {
    EXPECT_TRUE(letsIn("com.apple.mobilephone"));
    void *const library = dlopen(ZQDIAL_LIBRARY, RTLD_NOW);
    const auto *const flag = static_cast<const BOOL *>(dlsym(library, "g_isThreePartyCall"));
    ASSERT_NE(flag, nullptr);
    EXPECT_EQ(*flag, 0);
}

}  // namespace
