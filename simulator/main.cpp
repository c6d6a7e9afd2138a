// phone-simulator: the simulated Phone application from the command line.
#include <iostream>
#include <string>
#include <vector>

#include "stage/Commands.hpp"
#include "stage/Run.hpp"

#ifndef ZQDIAL_PICTURES_ALONE  // the build for another processor cannot look into a telephone
#include "monkey/Monkey.hpp"
#include "serve/Phone.hpp"
#include "serve/Serve.hpp"
#endif

int main(int count, char **words) {
#ifndef ZQDIAL_PICTURES_ALONE
    if (count == 2 && words[1] == serve::kPhoneWord) {
        return serve::runPhone();
    }
    stage::addCommand(monkey::command());
    stage::addCommand(serve::command());
#endif
    return stage::run(std::vector<std::string>(words + 1, words + count), std::cout, std::cerr);
}
