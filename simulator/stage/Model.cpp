// Names of the devices that the simulator plays.
#include "stage/Model.hpp"

#include <algorithm>

namespace stage {

std::string Model::title() const {
    return "iOS " + std::string(ios) + ", " + std::string(screen) + " inch";
}

std::string Model::slug() const {
    return "ios" + std::string(ios) + "-" + std::string(screen) + "inch";
}

Model modelNamed(std::string_view ios, std::string_view screen) {
    // The constants' own characters, so that a model may outlive the words it was read from.
    return {*std::ranges::find(kSystemVersions, ios), *std::ranges::find(kScreens, screen)};
}

}  // namespace stage
