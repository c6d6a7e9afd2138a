// phone-simulator as far as it is built for another processor: without what looks into the running
// telephone.
#include <iostream>
#include <string>
#include <vector>

#include "stage/Run.hpp"

int main(int count, char **words) {
    return stage::run(std::vector<std::string>(words + 1, words + count), std::cout, std::cerr);
}
