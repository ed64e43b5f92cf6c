#include "support/http_server.h"

#include <algorithm>
#include <stdexcept>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace twk::test {

namespace {

constexpr int patience_ms = 50; ///< between two looks at whether the server is to end
constexpr std::size_t largest_request = 64 * 1024;

std::string head(const std::string& status, const std::string& type, std::size_t length,
                 const std::string& more = {}) {
    return "HTTP/1.1 " + status + "\r\nContent-Type: " + type +
           "\r\nContent-Length: " + std::to_string(length) + "\r\nConnection: close\r\n" + more + "\r\n";
}

bool ready(int socket, short event) {
    pollfd wanted{socket, event, 0};
    return poll(&wanted, 1, patience_ms) > 0;
}

std::string page_with(const std::string& tag) {
    return "<html><head><title>x</title>" + tag +
           "</head><body>keywords in the text do not count</body></html>";
}

} // namespace

HttpServer::HttpServer() : socket_(socket(AF_INET, SOCK_STREAM, 0)) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    auto* const place = reinterpret_cast<sockaddr*>(&address);
    if (socket_ < 0 || bind(socket_, place, size) != 0 || listen(socket_, 16) != 0 ||
        getsockname(socket_, place, &size) != 0) {
        if (socket_ >= 0) close(socket_);
        throw std::runtime_error("no server on the loopback interface");
    }
    port_ = ntohs(address.sin_port);
    thread_ = std::thread([this] { listen_for_clients(); });
}

HttpServer::~HttpServer() {
    ending_ = true;
    thread_.join();
    for (const int client : held_) close(client);
    close(socket_);
}

std::string HttpServer::url(const std::string& path) const {
    return "http://127.0.0.1:" + std::to_string(port_) + path;
}

std::vector<std::string> HttpServer::requests() const {
    const std::lock_guard lock(mutex_);
    return requests_;
}

void HttpServer::set(const std::string& path, Answer answer) {
    const std::lock_guard lock(mutex_);
    answers_[path] = std::move(answer);
}

void HttpServer::page(const std::string& path, std::string body, std::string content_type) {
    set(path, [this, body = std::move(body), type = std::move(content_type)](int client) {
        send_text(client, head("200 OK", type, body.size()) + body);
        close(client);
    });
}

void HttpServer::redirect(const std::string& path, std::string to) {
    set(path, [this, to = std::move(to)](int client) {
        send_text(client, head("302 Found", "text/html", 0, "Location: " + to + "\r\n"));
        close(client);
    });
}

void HttpServer::silence(const std::string& path) {
    set(path, [this](int client) {
        const std::lock_guard lock(mutex_);
        held_.push_back(client);
    });
}

void HttpServer::broken(const std::string& path, std::string body) {
    set(path, [this, body = std::move(body)](int client) {
        send_text(client, head("200 OK", "text/html", body.size() + 1000) + body);
        close(client);
    });
}

void HttpServer::huge(const std::string& path, std::string start, std::size_t bytes) {
    set(path, [this, start = std::move(start), bytes](int client) {
        std::string block;
        while (block.size() < 64 * 1024) block += "flower ";
        send_text(client, head("200 OK", "text/html", std::max(bytes, start.size())) + start);
        for (std::size_t sent = start.size(); sent < bytes;) {
            const std::size_t now = std::min(block.size(), bytes - sent);
            if (!send_all(client, block.data(), now)) break;
            sent += now;
        }
        close(client);
    });
}

void HttpServer::listen_for_clients() {
    while (!ending_) {
        if (!ready(socket_, POLLIN)) continue;
        const int client = accept(socket_, nullptr, nullptr);
        if (client >= 0) serve(client);
    }
}

/// Reads one request and answers it. One client at a time: the spider asks for one page after another.
void HttpServer::serve(int client) {
    std::string request;
    char bytes[4096];
    while (!ending_ && request.find("\r\n\r\n") == std::string::npos && request.size() < largest_request) {
        if (!ready(client, POLLIN)) continue;
        const ssize_t count = recv(client, bytes, sizeof bytes, 0);
        if (count <= 0) break;
        request.append(bytes, static_cast<std::size_t>(count));
    }
    const std::size_t from = request.find(' ');
    const std::size_t to = from == std::string::npos ? from : request.find(' ', from + 1);
    if (to == std::string::npos) {
        close(client);
        return;
    }
    const std::string path = request.substr(from + 1, to - from - 1);
    Answer answer;
    {
        const std::lock_guard lock(mutex_);
        requests_.push_back(path);
        if (const auto found = answers_.find(path); found != answers_.end()) answer = found->second;
    }
    if (answer) {
        answer(client);
        return;
    }
    send_text(client, head("404 Not Found", "text/html", 0));
    close(client);
}

/// False when the client has gone or the server is to end.
bool HttpServer::send_all(int client, const char* bytes, std::size_t count) const {
    while (count > 0 && !ending_) {
        if (!ready(client, POLLOUT)) continue;
        const ssize_t sent = send(client, bytes, count, MSG_NOSIGNAL | MSG_DONTWAIT);
        if (sent < 0) return false;
        bytes += sent;
        count -= static_cast<std::size_t>(sent);
    }
    return count == 0;
}

void HttpServer::send_text(int client, const std::string& text) const {
    send_all(client, text.data(), text.size());
}

void HttpServer::serve_spider_site() {
    page("/plain", page_with("<meta name=\"keywords\" content=\"roses, red roses, plain\">"));
    page("/upper", page_with("<META NAME=\"KEYWORDS\" CONTENT=\"roses,upper\">"));
    page("/single", page_with("<meta name='keywords' content='roses,single'>"));
    page("/bare", page_with("<meta name=keywords content=bare>"));
    page("/last", page_with("<meta content=\"lost\" name=\"keywords\" >"));
    page("/spread", page_with("<meta\r\n  name=\"keywords\"\r\n  content=\"spread,\r\nout\"\r\n>"));
    page("/none", page_with("<meta name=\"description\" content=\"no such tag\">"));
    page("/empty", "");
    page("/latin", page_with("<meta name=\"keywords\" content=\"caf\xE9 garden,latin\">"), "text/html");
    // Says that it is UTF-8 and is not.
    page("/wrong", page_with("<meta name=\"keywords\" content=\"caf\xE9 corner,wrong\">"),
         "text/html; charset=utf-8");
    // Cut off in the middle of all sense, zero bytes among it.
    page("/binary", std::string("\x7F\0\0\xFF\xFE keywords \0 >", 18), "application/octet-stream");
    redirect("/moved", url("/plain"));
    redirect("/loop", url("/loop"));
    silence("/silent");
    broken("/broken", page_with("<meta name=\"keywords\" content=\"broken\">"));
    huge("/huge", "<html><head><meta name=\"keywords\" content=\"huge\"></head><body>", 50U << 20);
    std::string results = "<html><body>";
    for (const char* path :
         {"/plain", "/upper", "/single", "/bare", "/last", "/spread", "/none", "/empty", "/latin", "/wrong",
          "/binary", "/moved", "/loop", "/silent", "/broken", "/huge", "/missing"})
        results += "<a href=\"" + url(path) + "\">" + path + "</a>\r\n";
    page("/", results + "</body></html>");
}

} // namespace twk::test
