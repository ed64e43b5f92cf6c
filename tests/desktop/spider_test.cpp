// SPDX-License-Identifier: MIT
#include "desktop/qt_text.h"
#include "page_server.h"
#include "tools/form20.h"
#include "user.h"

#include <QElapsedTimer>
#include <QTest>

namespace twk {
namespace {

/// The spider with the real browser and the real transfers, on a site that misbehaves in every way.
class Spider : public test::WindowTest {
  protected:
    Spider() {
        serve_site();
        screens().dispatch([] { screens().show<Form20>(); });
        user.type("Form20", "Text2", server.address(QStringLiteral("/")));
        user.click("Form20", "Command8");
        ready = QTest::qWaitFor(
            [this] { return !qt.busy(form().wb1) && form().wb1.location_url() == url("/"); }, 30000);
    }

    void serve_site() {
        constexpr std::pair<const char*, const char*> heads[] = {
            {"/plain", "<meta name=\"keywords\" content=\"roses, red roses, plain\">"},
            {"/upper", "<META NAME=\"KEYWORDS\" CONTENT=\"roses,upper\">"},
            {"/single", "<meta name='keywords' content='roses,single'>"},
            {"/none", "<meta name=\"description\" content=\"no such tag\">"},
            {"/latin", "<meta name=\"keywords\" content=\"caf\xE9 garden,latin\">"},
            {"/wrong", "<meta name=\"keywords\" content=\"caf\xE9 corner,wrong\">"},
            {"/broken", "<meta name=\"keywords\" content=\"broken\">"},
            {"/huge", "<meta name=\"keywords\" content=\"huge\">"}};
        for (const auto& [path, head] : heads) {
            const QByteArray name = path;
            QByteArray body =
                QByteArray("<html><head><title>x</title>") + head + "</head><body>keywords</body>";
            if (name == "/huge") body += QByteArray(50 << 20, ' ');
            // One says that it is UTF-8 and is not, one ends before its end.
            server.page(name, body, name == "/wrong" ? "text/html; charset=utf-8" : "text/html",
                        name == "/broken" ? 1000 : 0);
        }
        server.page("/binary", QByteArray("\x7F\0\0\xFF\xFE keywords \0 >", 18), "application/octet-stream");
        server.redirect("/moved", server.address(QStringLiteral("/plain")));
        server.redirect("/loop", server.address(QStringLiteral("/loop")));
        server.hold_back("/silent");
        QString results;
        for (const char* path : {"/plain", "/upper", "/single", "/none", "/latin", "/wrong", "/binary",
                                 "/moved", "/loop", "/silent", "/broken", "/huge", "/missing"})
            results += QStringLiteral("<a href=\"%1\">x</a>").arg(server.address(QString::fromLatin1(path)));
        server.page("/", results.toLatin1());
    }

    static Form20& form() { return screen<Form20>(); }
    static bool logged(const Text& what) { return contains(form().Text1.text(), what); }
    Text url(const char* path) const { return from_qt(server.address(QString::fromLatin1(path))); }

    test::PageServer server;
    bool ready = false;
};

TEST_F(Spider, HarvestsASiteWhateverItsPagesDo) {
    ASSERT_TRUE(ready);
    form().Inet1.request_timeout = 2;
    user.click("Form20", "Command7");

    const std::vector<Text>& words = form().List1.entries();
    for (const char16_t* word : {u"roses", u"red roses", u"plain>", u"upper>", u"single'>", u"huge>",
                                 u"broken>", u"caf\u00e9 garden", u"latin>", u"caf\u00e9 corner"})
        EXPECT_NE(std::find(words.begin(), words.end(), word), words.end()) << to_utf8(word);
    EXPECT_TRUE(form().List1.selected(0)) << "met on several pages";
    EXPECT_TRUE(logged(u"Timed out: " + url("/silent")));
    EXPECT_FALSE(logged(url("/silent") + u" downloaded"));
    EXPECT_TRUE(logged(url("/loop") + u" downloaded")) << "other failures count as an empty page";
    EXPECT_TRUE(logged(u" - No keywords found in " + url("/none")));
    EXPECT_TRUE(logged(u" - Process Complete "));
    EXPECT_EQ(form().time_outs, 1);
    EXPECT_EQ(server.requests.back(), "/missing");
}

TEST_F(Spider, EndsWhenItIsCancelledWhileAPageDoesNotAnswer) {
    ASSERT_TRUE(ready);
    form().Inet1.request_timeout = 60;
    user.expect(QStringLiteral("Cancell Spider?"), QMessageBox::Yes, QStringLiteral("Spider"));
    QTimer impatience;
    QObject::connect(&impatience, &QTimer::timeout, &impatience, [&] {
        if (server.requests.back() != "/silent") return;
        impatience.stop();
        user.click("Form20", "Command7");
    });
    impatience.start(50);
    QElapsedTimer took;
    took.start();
    user.click("Form20", "Command7");
    EXPECT_LT(took.elapsed(), 30000) << "the download is broken off";

    EXPECT_TRUE(logged(u" - Process Cancelled"));
    EXPECT_EQ(form().List1.list_count(), 0) << "nothing is listed";
    EXPECT_EQ(server.requests.back(), "/silent") << "no page is asked for behind it";
}

} // namespace
} // namespace twk
