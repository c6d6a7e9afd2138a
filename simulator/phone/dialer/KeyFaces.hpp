// What stands on the twelve keys.
#pragma once

#include <array>
#include <string_view>

namespace phone {

struct KeyFace {
    std::string_view sign;     // what is printed large
    std::string_view letters;  // what is printed below; may be empty
    std::string_view types;    // what the key puts in
};

inline constexpr std::array<KeyFace, 12> kKeyFaces = {{{"1", "", "1"},
                                                       {"2", "A B C", "2"},
                                                       {"3", "D E F", "3"},
                                                       {"4", "G H I", "4"},
                                                       {"5", "J K L", "5"},
                                                       {"6", "M N O", "6"},
                                                       {"7", "P Q R S", "7"},
                                                       {"8", "T U V", "8"},
                                                       {"9", "W X Y Z", "9"},
                                                       {"*", "", "*"},
                                                       {"0", "+", "0"},
                                                       {"#", "", "#"}}};

}  // namespace phone
