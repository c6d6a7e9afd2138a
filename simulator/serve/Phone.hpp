// A phone's process: one session, which does what the server asks of it.
#pragma once

#include <string_view>

namespace serve {

/// The word by which the program knows that it is to be a phone's process, and the files that it
/// finds open then.
inline constexpr std::string_view kPhoneWord = "--phone-of-a-server";
inline constexpr int kPhoneSocket = 3;
inline constexpr int kPhonePicture = 4;

/// Runs until the server ends. Returns the exit code.
int runPhone();

}  // namespace serve
