// The hooking framework beside the host, and what it was asked for.
#pragma once

#include <set>
#include <string>

/// The replaced methods, each as its class and selector as often as it was replaced.
const std::multiset<std::string> &hookedMethods();
