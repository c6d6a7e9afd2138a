// The HTTP side: the page's files, and a socket for each visitor. It listens on the loopback
// address alone, and answers nobody but its own page.
#pragma once

#include <filesystem>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include <libsoup/soup.h>

#include "serve/Page.hpp"
#include "serve/Visitor.hpp"

namespace serve {

class Server {
  public:
    static constexpr size_t kMostVisitors = 8;

    /// Listens from now on, in the main loop. Port 0 is any that is free. What visitors need is
    /// kept in subfolders of `folder`. Throws Failure, as when the port is in use.
    Server(House house, const std::filesystem::path &page, std::filesystem::path folder,
           unsigned port);
    ~Server();
    Server(const Server &) = delete;
    Server &operator=(const Server &) = delete;

    unsigned port() const { return port_; }

  private:
    /// To everything but an upgrade of the socket's that is ours.
    void respond(SoupServerMessage *message, const std::string &path) const;
    void welcome(SoupWebsocketConnection *socket);
    bool isOurs(const std::string &host) const;

    House house_;
    Page page_;
    std::filesystem::path folder_;
    Object<SoupServer> soup_;
    unsigned port_ = 0;
    std::map<int, std::unique_ptr<Visitor>> visitors_;
    int lastVisitor_ = 0;
    Source farewell_;
    std::vector<int> gone_;  // visitors that have left
};

}  // namespace serve
