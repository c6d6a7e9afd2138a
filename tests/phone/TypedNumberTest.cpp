// How numbers are written while they are typed, and which of them are the same to the contacts.
#include <gtest/gtest.h>

#include "phone/dialer/ContactBook.hpp"
#include "phone/dialer/TypedNumber.hpp"

namespace {

using phone::ContactBook;
using phone::ContactMatch;
using phone::TypedNumber;

TypedNumber typed(std::string_view text) {
    TypedNumber number;
    number.append(text);
    return number;
}

TEST(TypedNumber, IsGroupedAsItIsTyped) {
    const struct {
        std::string_view typed;
        std::string_view shown;
    } cases[] = {
        {"", ""},
        {"1", "1"},
        {"1380013", "138 0013"},
        {"13800138000", "138 0013 8000"},
        {"01012345678", "010 1234 5678"},
        {"+442079460123", "+44 20 7946 0123"},
        {"*#06#", "*#06#"},
        {"12,34;5", "12,34;5"},
        {"快递", "快递"},
        {"1380013８", "1380013８"},
        {"123456789012345678901234567890", "123456789012345678901234567890"},
    };
    for (const auto &[text, shown] : cases) {
        EXPECT_EQ(typed(text).formatted(), shown) << text;
    }
    const std::string endless(10000, '7');
    EXPECT_EQ(typed(endless).formatted(), endless);
}

TEST(TypedNumber, DeletesWholeCharacters) {
    TypedNumber number = typed("1快📞");
    number.deleteLast();
    EXPECT_EQ(number.typed(), "1快");
    number.deleteLast();
    EXPECT_EQ(number.typed(), "1");
    number.deleteLast();
    number.deleteLast();
    EXPECT_TRUE(number.empty());
}

TEST(ContactBook, MatchesNumbersHoweverTheyAreWritten) {
    ContactBook book;
    book.add({"林小满", {{"138 0013 0011", "手机"}, {"(010) 0123-4567", ""}}});
    book.add({"第二位", {{"13800130011", "工作"}}});
    book.add({"Ann", {{"+44 20 7946 0018", "home"}}});
    const ContactMatch first{"林小满", "手机"};
    EXPECT_EQ(book.match("13800130011"), first) << "the first of two with one number";
    EXPECT_EQ(book.match("+8613800130011"), first);
    EXPECT_EQ(book.match("0086 138-0013-0011"), first);
    EXPECT_EQ(book.match("01001234567"), (ContactMatch{"林小满", ""}));
    EXPECT_EQ(book.match("+442079460018"), (ContactMatch{"Ann", "home"}));
}

TEST(ContactBook, MatchesNothingElse) {
    ContactBook book;
    book.add({"服务", {{"100", ""}}});
    book.add({"无号", {{"", ""}}});
    for (const std::string_view text : {"", "10", "1000", "*100#", "100w", "8610", "abc", "+"}) {
        EXPECT_EQ(book.match(text), std::nullopt) << text;
    }
}

}  // namespace
