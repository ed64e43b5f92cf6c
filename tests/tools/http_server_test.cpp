#include "support/http_server.h"

#include <arpa/inet.h>
#include <gtest/gtest.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

namespace twk::test {
namespace {

/// Answer to a plain request, read until the server closes or has been silent for a tenth of a second.
std::string ask(const std::string& url) {
    const std::size_t colon = url.rfind(':');
    const std::size_t slash = url.find('/', colon);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    address.sin_port = htons(static_cast<std::uint16_t>(std::stoi(url.substr(colon + 1, slash - colon - 1))));
    const int client = socket(AF_INET, SOCK_STREAM, 0);
    const timeval patience{0, 100000};
    setsockopt(client, SOL_SOCKET, SO_RCVTIMEO, &patience, sizeof patience);
    std::string answer;
    if (connect(client, reinterpret_cast<sockaddr*>(&address), sizeof address) == 0) {
        const std::string request = "GET " + url.substr(slash) + " HTTP/1.1\r\nHost: x\r\n\r\n";
        send(client, request.data(), request.size(), MSG_NOSIGNAL);
        char bytes[65536];
        for (ssize_t count; (count = recv(client, bytes, sizeof bytes, 0)) > 0;)
            answer.append(bytes, static_cast<std::size_t>(count));
    }
    close(client);
    return answer;
}

TEST(HttpServer, serves_the_spiders_site_and_goes_whoever_waits) {
    HttpServer server;
    server.serve_spider_site();
    EXPECT_NE(ask(server.url("/")).find(server.url("/huge")), std::string::npos);
    EXPECT_NE(ask(server.url("/moved")).find("Location: " + server.url("/plain")), std::string::npos);
    EXPECT_TRUE(ask(server.url("/missing")).starts_with("HTTP/1.1 404"));
    EXPECT_GT(ask(server.url("/huge")).size(), 50U << 20);
    EXPECT_EQ(ask(server.url("/silent")), "");
    EXPECT_NE(ask(server.url("/broken")).find("content=\"broken\""), std::string::npos);
    EXPECT_EQ(server.requests().back(), "/broken");
}

} // namespace
} // namespace twk::test
