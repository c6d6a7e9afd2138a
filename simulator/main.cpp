// phone-simulator: the simulated Phone application from the command line.
#include <iostream>
#include <string>
#include <vector>

#include "monkey/Monkey.hpp"
#include "serve/Phone.hpp"
#include "serve/Serve.hpp"
#include "stage/Commands.hpp"
#include "stage/Run.hpp"

int main(int count, char **words) {
    if (count == 2 && words[1] == serve::kPhoneWord) {
        return serve::runPhone();
    }
    stage::addCommand(monkey::command());
    stage::addCommand({"serve",
                       "Show the telephone in a browser, until Ctrl-C.",
                       &serve::serve,
                       {"port", "world", "calls"}});
    return stage::run(std::vector<std::string>(words + 1, words + count), std::cout, std::cerr);
}
