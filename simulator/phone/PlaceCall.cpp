// One placer for the process, as there is one telephone.
#include "phone/PlaceCall.hpp"

#include <utility>

#include "phone/Parts.hpp"

namespace phone {
namespace {

std::function<void(NSString)> g_place;

}  // namespace

void setCallPlacer(std::function<void(NSString number)> place) { g_place = std::move(place); }

void placeCall(NSString number) {
    if (g_place && hasText(number)) {
        g_place(number);
    }
}

}  // namespace phone
