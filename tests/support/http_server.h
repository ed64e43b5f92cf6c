#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace twk::test {

/// A small HTTP server on the loopback interface, with a thread of its own: pages as a test names them, and
/// pages that misbehave. It ends with the object, whatever its clients wait for.
class HttpServer {
  public:
    /// Listens at a port that the system chooses. Throws std::runtime_error when it cannot.
    HttpServer();
    ~HttpServer();
    HttpServer(const HttpServer&) = delete;
    HttpServer& operator=(const HttpServer&) = delete;

    /// "http://127.0.0.1:PORT" and the path, which begins with "/".
    std::string url(const std::string& path) const;

    /// A page, sent as these bytes under this content type.
    void page(const std::string& path, std::string body, std::string content_type = "text/html");
    /// Sends the client to another address.
    void redirect(const std::string& path, std::string to);
    /// Takes the request and never answers.
    void silence(const std::string& path);
    /// Tells a longer page than it sends, and closes.
    void broken(const std::string& path, std::string body);
    /// A page of the given size, made while it is sent: `head`, then one word again and again.
    void huge(const std::string& path, std::string head, std::size_t bytes);

    /// The spider's test site: a results page at "/", and behind it keyword tags in all shapes, and every
    /// page that misbehaves.
    void serve_spider_site();

    /// Paths asked for, in order.
    std::vector<std::string> requests() const;

  private:
    using Answer = std::function<void(int client)>;

    void set(const std::string& path, Answer answer);
    void listen_for_clients();
    void serve(int client);
    bool send_all(int client, const char* bytes, std::size_t count) const;
    void send_text(int client, const std::string& text) const;

    int socket_ = -1;
    std::uint16_t port_ = 0;
    std::atomic<bool> ending_{false};
    mutable std::mutex mutex_;
    std::map<std::string, Answer> answers_;
    std::vector<std::string> requests_;
    std::vector<int> held_; ///< clients that wait in vain
    std::thread thread_;
};

} // namespace twk::test
