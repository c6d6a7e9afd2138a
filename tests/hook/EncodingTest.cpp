// Replacements take their arguments from where the methods that they stand in for have them.
#include <gtest/gtest.h>

#include "hook/Table.hpp"
#include "members/Encodings.hpp"

namespace {

TEST(HookEncodings, AreThoseOfTheMethodsThatAreReplaced) {
    for (const hook::HookRow &row : hook::kRows) {
        SCOPED_TRACE(std::string(row.className) + " " + row.selectorName);
        const Class cls = objc::findClass(row.className);
        const Method method = class_getInstanceMethod(cls, sel_registerName(row.selectorName));
        ASSERT_NE(method, nullptr);
        EXPECT_TRUE(members::sameEncoding(row.encoding, method_getTypeEncoding(method)))
            << "ours is " << row.encoding << ", theirs " << method_getTypeEncoding(method);
    }
}

TEST(HookEncodings, AreComparedTypeByType) {
    struct Case {
        const char *ours, *theirs;
        bool isSame;
    };
    for (const auto &[ours, theirs, isSame] : {
             Case{"v@:@i", "v28@0:8@16i24", true},
             Case{"@@:^v", "@24@0:8^{__CTCall=}16", true},
             Case{"@@:@C", "v20@0:8@16C20", true},
             Case{"v@:{CGPoint=dd}", "v32@0:8{CGPoint=dd}16", true},
             Case{"v@:*", "v24@0:8r*16", true},
             Case{"v@:@", "@24@0:8@16", false},
             Case{"v@:{CGPoint=dd}", "v32@0:8{CGPoint=ff}16", false},
             Case{"v@:@", "v24@0:8^v16", false},
             Case{"v@:@i", "v24@0:8@16", false},
             Case{"v@:@", "v28@0:8@16i24", false},
             Case{"v@:", "", false},
             Case{"v@:{", "v@:{A{", false},
         }) {
        EXPECT_EQ(members::sameEncoding(ours, theirs), isSame) << ours << ", " << theirs;
    }
}

}  // namespace
