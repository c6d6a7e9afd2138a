// What the server and a phone's process say to each other, over a stream socket: messages of a
// kind, each a text. Pictures are not among them, they lie in memory that both share.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "serve/Glib.hpp"

namespace serve {

struct Message {
    char kind;
    std::string text;
};

/// The phone's end, which waits.
class PhoneEnd {
  public:
    explicit PhoneEnd(int socket) : socket_(socket) {}

    /// Nothing when the server is gone.
    std::optional<Message> receive();
    void send(char kind, std::string_view text);

  private:
    bool readAll(void *bytes, size_t count) const;

    int socket_;
};

/// The server's end, which never waits.
class ServerEnd {
  public:
    /// Takes the socket over. `heard` gets every message, `ended` is called when there are no more
    /// to come; neither may destroy the object.
    ServerEnd(int socket, std::function<void(Message)> heard, std::function<void()> ended);
    ~ServerEnd();
    ServerEnd(const ServerEnd &) = delete;
    ServerEnd &operator=(const ServerEnd &) = delete;

    void send(char kind, std::string_view text);

  private:
    void read();
    void write();
    std::optional<Message> next();

    int socket_;
    std::function<void(Message)> heard_;
    std::function<void()> ended_;
    std::string incoming_;
    std::string outgoing_;
    Source input_;
    Source output_;
};

}  // namespace serve
