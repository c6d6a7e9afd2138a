// Another page in the same browser can send requests here, but neither with our host's name, when
// it has made its own name lead here, nor with our origin.
#include "serve/Server.hpp"

#include <algorithm>

#include "serve/Reports.hpp"
#include "stage/Errors.hpp"

namespace serve {
namespace {

constexpr auto kSocket = "/phone";

void set(SoupServerMessage *message, guint status, const char *type, const std::string &body) {
    soup_server_message_set_status(message, status, nullptr);
    soup_server_message_set_response(message, type, SOUP_MEMORY_COPY, body.data(), body.size());
}

void refuse(SoupServerMessage *message, guint status, const std::string &why) {
    set(message, status, "text/plain; charset=utf-8", why + "\n");
}

std::string headerOf(SoupServerMessage *message, const char *name) {
    const char *const value =
        soup_message_headers_get_list(soup_server_message_get_request_headers(message), name);
    return value == nullptr ? "" : value;
}

/// For every response, refusals included.
void addHeaders(SoupServerMessage *message, unsigned port) {
    const std::string sockets =
        "ws://127.0.0.1:" + std::to_string(port) + " ws://localhost:" + std::to_string(port);
    const std::pair<const char *, std::string> headers[] = {
        {"Content-Security-Policy",
         "default-src 'none'; script-src 'self'; style-src 'self'; img-src 'self' blob:; "
         "connect-src 'self' " +
             sockets + "; base-uri 'none'; form-action 'none'; frame-ancestors 'none'"},
        {"X-Content-Type-Options", "nosniff"},
        {"Cache-Control", "no-store"},
        {"Referrer-Policy", "no-referrer"},
        {"Cross-Origin-Opener-Policy", "same-origin"},
        {"Cross-Origin-Resource-Policy", "same-origin"},
    };
    SoupMessageHeaders *const all = soup_server_message_get_response_headers(message);
    for (const auto &[name, value] : headers) {
        soup_message_headers_replace(all, name, value.c_str());
    }
}

}  // namespace

Server::Server(House house, const std::filesystem::path &page, std::filesystem::path folder,
               unsigned port)
    : house_(std::move(house)),
      page_(page),
      folder_(std::move(folder)),
      soup_(soup_server_new("server-header", nullptr, nullptr)) {
    GError *error = nullptr;
    if (!soup_server_listen_local(soup_.get(), port, SOUP_SERVER_LISTEN_IPV4_ONLY, &error)) {
        const bool isTaken = g_error_matches(error, G_IO_ERROR, G_IO_ERROR_ADDRESS_IN_USE);
        const std::string reason =
            isTaken ? "is in use" : "cannot be had: " + std::string(error->message);
        g_error_free(error);
        throw stage::Failure("port " + std::to_string(port) + " " + reason +
                             "; name another with --port");
    }
    GSList *const uris = soup_server_get_uris(soup_.get());
    port_ = static_cast<unsigned>(g_uri_get_port(static_cast<GUri *>(uris->data)));
    g_slist_free_full(uris, reinterpret_cast<GDestroyNotify>(&g_uri_unref));

    const auto onHeaders =
        +[](SoupServer *, SoupServerMessage *message, const char *path, GHashTable *,
            gpointer self) { static_cast<Server *>(self)->respond(message, path); };
    const auto onSocket =
        +[](SoupServer *, SoupServerMessage *, const char *, SoupWebsocketConnection *socket,
            gpointer self) { static_cast<Server *>(self)->welcome(socket); };
    soup_server_add_websocket_handler(soup_.get(), kSocket, nullptr, nullptr, onSocket, this,
                                      nullptr);
    // The socket's handler would have all for itself that begins like its path.
    for (const char *const path : {static_cast<const char *>(nullptr), kSocket}) {
        soup_server_add_early_handler(soup_.get(), path, onHeaders, this, nullptr);
    }
    // Pictures do not leave the machine: to compress them costs more than it saves.
    soup_server_remove_websocket_extension(soup_.get(), SOUP_TYPE_WEBSOCKET_EXTENSION_DEFLATE);
}

Server::~Server() {
    visitors_.clear();
    soup_server_disconnect(soup_.get());
}

bool Server::isOurs(const std::string &host) const {
    const std::string port = ":" + std::to_string(port_);
    return host == "127.0.0.1" + port || host == "localhost" + port;
}

void Server::respond(SoupServerMessage *message, const std::string &path) const {
    constexpr std::string_view kScheme = "http://";
    addHeaders(message, port_);
    // What comes with a request is not wanted, and not kept.
    soup_message_body_set_accumulate(soup_server_message_get_request_body(message), FALSE);
    const std::string origin = headerOf(message, "Origin");
    const bool isOurOrigin = origin.starts_with(kScheme) && isOurs(origin.substr(kScheme.size()));
    const std::string method = soup_server_message_get_method(message);
    if (!isOurs(headerOf(message, "Host"))) {
        refuse(message, SOUP_STATUS_FORBIDDEN, "this host's name is not ours");
    } else if (!isOurOrigin && (path == kSocket || !origin.empty())) {
        refuse(message, SOUP_STATUS_FORBIDDEN, "this origin is not ours");
    } else if (method != "GET" && method != "HEAD") {
        refuse(message, SOUP_STATUS_METHOD_NOT_ALLOWED, "there is nothing here but a page to get");
    } else if (const Page::File *const file = page_.file(path)) {
        set(message, SOUP_STATUS_OK, file->type, file->bytes);
    } else if (path != kSocket) {
        refuse(message, SOUP_STATUS_NOT_FOUND, "there is nothing of that name");
    }
}

void Server::welcome(SoupWebsocketConnection *socket) {
    if (visitors_.size() >= kMostVisitors) {
        const std::string report = report::failed("too many pages are open; close one of them");
        soup_websocket_connection_send_text(socket, report.c_str());
        soup_websocket_connection_close(socket, SOUP_WEBSOCKET_CLOSE_POLICY_VIOLATION, nullptr);
        return;
    }
    const int number = ++lastVisitor_;
    visitors_[number] =
        std::make_unique<Visitor>(house_, folder_ / std::to_string(number), socket, [this, number] {
            gone_.push_back(number);
            farewell_ = Source::every(std::chrono::milliseconds(0), [this] {
                farewell_.stop();
                for (const int visitor : std::exchange(gone_, {})) {
                    visitors_.erase(visitor);
                }
            });
        });
}

}  // namespace serve
