// The hooking framework beside the host, and what it was asked for.
#pragma once

#include <map>
#include <string>

/// The replaced methods with what replaced them, each as its class and selector as often as it was.
const std::multimap<std::string, void *> &hookedMethods();
