// libsoup's own client, in the main loop that the server runs in as well.
#include "serve/Visit.hpp"

#include <algorithm>
#include <chrono>
#include <cstring>

namespace test {
namespace {

using Clock = std::chrono::steady_clock;
using namespace std::chrono_literals;

std::string address(unsigned port, const std::string &path) {
    return "http://127.0.0.1:" + std::to_string(port) + path;
}

template <class Result>
struct Answer {
    Result *result = nullptr;
    bool came = false;
};

template <auto finish, class Result>
void take(GObject *session, GAsyncResult *result, gpointer answer) {
    auto &taken = *static_cast<Answer<Result> *>(answer);
    taken.result = finish(SOUP_SESSION(session), result, nullptr);
    taken.came = true;
}

std::uint16_t shortAt(const unsigned char *bytes) {
    std::uint16_t number = 0;
    std::memcpy(&number, bytes, sizeof number);
    return number;
}

}  // namespace

bool waitUntil(const std::function<bool()> &isSo) {
    constexpr auto kPatience = 60s;
    const auto end = Clock::now() + kPatience;
    const auto wake = serve::Source::every(5ms, [] {});
    while (!isSo()) {
        if (Clock::now() > end) {
            return false;
        }
        g_main_context_iteration(nullptr, TRUE);
    }
    return true;
}

unsigned statusOf(unsigned port, const Knock &knock) {
    const serve::Object<SoupSession> session(soup_session_new());
    const serve::Object<SoupMessage> message(
        soup_message_new(knock.method.c_str(), address(port, knock.path).c_str()));
    SoupMessageHeaders *const headers = soup_message_get_request_headers(message.get());
    if (!knock.host.empty()) {
        soup_message_headers_replace(headers, "Host", knock.host.c_str());
    }
    if (!knock.origin.empty()) {
        soup_message_headers_replace(headers, "Origin", knock.origin.c_str());
    }
    if (knock.path == "/phone") {
        Answer<SoupWebsocketConnection> answer;
        soup_session_websocket_connect_async(
            session.get(), message.get(), nullptr, nullptr, G_PRIORITY_DEFAULT, nullptr,
            &take<&soup_session_websocket_connect_finish, SoupWebsocketConnection>, &answer);
        waitUntil([&] { return answer.came; });
        g_clear_object(&answer.result);
    } else {
        Answer<GBytes> answer;
        soup_session_send_and_read_async(session.get(), message.get(), G_PRIORITY_DEFAULT, nullptr,
                                         &take<&soup_session_send_and_read_finish, GBytes>,
                                         &answer);
        waitUntil([&] { return answer.came; });
        g_bytes_unref(answer.result);
    }
    return soup_message_get_status(message.get());
}

Visit::Visit(unsigned port) : session_(soup_session_new()) {
    const serve::Object<SoupMessage> message(
        soup_message_new("GET", address(port, "/phone").c_str()));
    Answer<SoupWebsocketConnection> answer;
    soup_session_websocket_connect_async(
        session_.get(), message.get(), address(port, "").c_str(), nullptr, G_PRIORITY_DEFAULT,
        nullptr, &take<&soup_session_websocket_connect_finish, SoupWebsocketConnection>, &answer);
    waitUntil([&] { return answer.came; });
    socket_.reset(answer.result);
    constexpr guint64 kLargest = 1U << 24U;
    soup_websocket_connection_set_max_incoming_payload_size(socket_.get(), kLargest);
    const auto onMessage = +[](SoupWebsocketConnection *, int type, GBytes *bytes, gpointer self) {
        static_cast<Visit *>(self)->hear(type, bytes);
    };
    g_signal_connect(socket_.get(), "message", G_CALLBACK(onMessage), this);
}

Visit::~Visit() {
    g_signal_handlers_disconnect_by_data(socket_.get(), this);
    if (!isOver()) {
        soup_websocket_connection_close(socket_.get(), SOUP_WEBSOCKET_CLOSE_NORMAL, nullptr);
    }
}

bool Visit::isOver() const {
    return soup_websocket_connection_get_state(socket_.get()) != SOUP_WEBSOCKET_STATE_OPEN;
}

void Visit::say(const std::string &message) {
    soup_websocket_connection_send_text(socket_.get(), message.c_str());
}

void Visit::open(const std::string &ios, const std::vector<std::string> &sides,
                 const std::vector<std::string> &steps) {
    asked_ = steps;
    ask({{"ask", "open"}, {"ios", ios}, {"screen", "4"}, {"sides", sides}, {"steps", steps}});
}

Visit::Json Visit::told(const std::string &kind) {
    Json found;
    waitUntil([&] {
        while (found.is_null() && !reports_.empty()) {
            if (reports_.front().at("tell") == kind) {
                found = reports_.front();
            }
            reports_.pop_front();
        }
        return !found.is_null();
    });
    return found;
}

bool Visit::hasDone(const std::string &line) const {
    return waitUntil([&] { return std::ranges::find(steps_, line) != steps_.end(); });
}

void Visit::settle() {
    size_t before = heard_;
    auto since = Clock::now();
    waitUntil([&] {
        if (std::exchange(before, heard_) != heard_) {
            since = Clock::now();
        }
        return Clock::now() - since > 400ms;
    });
}

void Visit::hear(int type, GBytes *message) {
    ++heard_;
    gsize size = 0;
    const auto *const bytes = static_cast<const unsigned char *>(g_bytes_get_data(message, &size));
    bytes_ += size;
    if (type == SOUP_WEBSOCKET_DATA_BINARY) {
        show(bytes);
        return;
    }
    reports_.push_back(Json::parse(bytes, bytes + size));
    note(reports_.back());
}

void Visit::note(const Json &report) {
    if (report.at("tell") == "opened") {
        steps_ = asked_;
        width_ = report.at("width");
        height_ = report.at("height");
        screens_.clear();
    } else if (report.at("tell") == "did") {
        for (const Json &line : report.at("lines")) {
            steps_.push_back(line);
        }
    }
}

void Visit::show(const unsigned char *picture) {
    constexpr size_t kHeader = 16;
    const std::string side = picture[0] == 1 ? "with" : "without";
    Screen &screen = screens_[side];
    screen.pixels.resize(width_ * height_);
    const size_t x = shortAt(picture + 2);
    const size_t y = shortAt(picture + 4);
    const size_t width = shortAt(picture + 6);
    const size_t height = shortAt(picture + 8);
    std::memcpy(&screen.number, picture + 12, sizeof screen.number);
    for (size_t row = 0; row < height; ++row) {
        std::memcpy(&screen.pixels.at((y + row) * width_ + x),
                    picture + kHeader + row * width * sizeof(std::uint32_t),
                    width * sizeof(std::uint32_t));
    }
    ask({{"ask", "drew"}, {"side", side}, {"picture", screen.number}});
}

}  // namespace test
