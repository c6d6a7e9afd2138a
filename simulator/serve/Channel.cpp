// A message is its length, its kind and its text.
#include "serve/Channel.hpp"

#include <cerrno>
#include <cstring>

#include <sys/socket.h>
#include <unistd.h>

namespace serve {
namespace {

struct Head {
    std::uint32_t length;
    char kind;
};
constexpr size_t kHead = sizeof(std::uint32_t) + sizeof(char);

std::string packed(char kind, std::string_view text) {
    const auto length = static_cast<std::uint32_t>(text.size());
    std::string bytes(kHead, '\0');
    std::memcpy(bytes.data(), &length, sizeof length);
    bytes[sizeof length] = kind;
    return bytes.append(text);
}

Head headOf(const char *bytes) {
    Head head{};
    std::memcpy(&head.length, bytes, sizeof head.length);
    head.kind = bytes[sizeof head.length];
    return head;
}

}  // namespace

bool PhoneEnd::readAll(void *bytes, size_t count) const {
    for (size_t done = 0; done < count;) {
        const ssize_t got = ::read(socket_, static_cast<char *>(bytes) + done, count - done);
        if (got == 0 || (got < 0 && errno != EINTR)) {
            return false;
        }
        done += got > 0 ? static_cast<size_t>(got) : 0;
    }
    return true;
}

std::optional<Message> PhoneEnd::receive() {
    char bytes[kHead];
    if (!readAll(bytes, kHead)) {
        return std::nullopt;
    }
    const Head head = headOf(bytes);
    Message message{head.kind, std::string(head.length, '\0')};
    return readAll(message.text.data(), head.length) ? std::optional(std::move(message))
                                                     : std::nullopt;
}

void PhoneEnd::send(char kind, std::string_view text) {
    const std::string bytes = packed(kind, text);
    for (size_t done = 0; done < bytes.size();) {
        const ssize_t sent =
            ::send(socket_, bytes.data() + done, bytes.size() - done, MSG_NOSIGNAL);
        if (sent < 0 && errno != EINTR) {
            return;  // the next receive() tells
        }
        done += sent > 0 ? static_cast<size_t>(sent) : 0;
    }
}

ServerEnd::ServerEnd(int socket, std::function<void(Message)> heard, std::function<void()> ended)
    : socket_(socket),
      heard_(std::move(heard)),
      ended_(std::move(ended)),
      input_(Source::onInput(socket, [this] { read(); })) {}

ServerEnd::~ServerEnd() {
    input_.stop();
    output_.stop();
    close(socket_);
}

std::optional<Message> ServerEnd::next() {
    if (incoming_.size() < kHead) {
        return std::nullopt;
    }
    const Head head = headOf(incoming_.data());
    if (incoming_.size() < kHead + head.length) {
        return std::nullopt;
    }
    Message message{head.kind, incoming_.substr(kHead, head.length)};
    incoming_.erase(0, kHead + head.length);
    return message;
}

void ServerEnd::read() {
    char part[65536];
    const ssize_t got = recv(socket_, part, sizeof part, MSG_DONTWAIT);
    if (got < 0 && (errno == EAGAIN || errno == EINTR)) {
        return;
    }
    if (got <= 0) {
        input_.stop();
        ended_();
        return;
    }
    incoming_.append(part, static_cast<size_t>(got));
    while (auto message = next()) {
        heard_(std::move(*message));
    }
}

void ServerEnd::send(char kind, std::string_view text) {
    outgoing_ += packed(kind, text);
    write();
}

void ServerEnd::write() {
    const ssize_t sent =
        ::send(socket_, outgoing_.data(), outgoing_.size(), MSG_DONTWAIT | MSG_NOSIGNAL);
    if (sent > 0) {
        outgoing_.erase(0, static_cast<size_t>(sent));
    } else if (sent < 0 && errno != EAGAIN && errno != EINTR) {
        outgoing_.clear();  // the phone has ended, which read() finds out
    }
    if (outgoing_.empty()) {
        output_.stop();
    } else if (!output_.isSet()) {
        output_ = Source::onOutput(socket_, [this] { write(); });
    }
}

}  // namespace serve
