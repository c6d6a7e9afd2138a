// What the page is told, as the texts of messages.
#pragma once

#include <string>
#include <vector>

#include "serve/Requests.hpp"

namespace serve::report {

std::string opened(const ask::Open &open, const std::vector<Side> &sides);
std::string did(const std::vector<std::string> &lines);
std::string refused(const std::string &line, const std::string &why);
std::string mistakes(const std::string &name, const std::vector<std::string> &lines);
std::string took(const std::string &name, const std::vector<std::string> &lines);
std::string failed(const std::string &why);
std::string died(Side side, const std::vector<std::string> &log);
std::string asleep();

// The rest is JSON already.
std::string views(Side side, const std::string &root);
std::string happened(Side side, const std::string &line, const std::string &happenings);

}  // namespace serve::report
