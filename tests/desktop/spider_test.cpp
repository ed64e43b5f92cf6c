#include "desktop/qt_text.h"
#include "support/http_server.h"
#include "tools/form20.h"
#include "user.h"

#include <QTest>
#include <algorithm>

namespace twk {
namespace {

/// The spider with the real browser and the real transfers, on a site that misbehaves in every way.
class Spider : public test::WindowTest {
  protected:
    Spider() {
        server.serve_spider_site();
        screens().dispatch([] { screens().show<Form20>(); });
        user.type("Form20", "Text2", QString::fromStdString(server.url("/")));
        user.click("Form20", "Command8");
        const QString results = QString::fromStdString(server.url("/"));
        ready = QTest::qWaitFor(
            [&] { return !qt.busy(form().wb1) && to_qt(form().wb1.location_url()) == results; }, 30000);
    }

    static Form20& form() { return screen<Form20>(); }

    bool listed(TextView word) const {
        const std::vector<Text>& words = form().List1.entries();
        return std::find(words.begin(), words.end(), word) != words.end();
    }

    bool logged(const Text& what) const { return contains(form().Text1.text(), what); }

    Text url(const char* path) const { return from_utf8(server.url(path)); }

    test::HttpServer server;
    bool ready = false;
};

TEST_F(Spider, HarvestsASiteWhateverItsPagesDo) {
    ASSERT_TRUE(ready);
    form().Inet1.request_timeout = 2;
    user.click("Form20", "Command7");

    for (const char16_t* word : {u"roses", u"red roses", u"plain>", u"upper>", u"single'>", u"huge>",
                                 u"broken>", u"caf\u00e9 garden", u"latin>", u"caf\uFFFD corner"})
        EXPECT_TRUE(listed(word)) << to_utf8(word);
    EXPECT_TRUE(form().List1.selected(0)) << "met on several pages";
    EXPECT_TRUE(logged(u"Timed out: " + url("/silent")));
    EXPECT_FALSE(logged(url("/silent") + u" downloaded"));
    EXPECT_TRUE(logged(url("/loop") + u" downloaded")) << "other failures count as an empty page";
    EXPECT_TRUE(logged(u" - No keywords found in " + url("/none")));
    EXPECT_TRUE(logged(u" - Process Complete "));
    EXPECT_EQ(form().agotados, 1);
    EXPECT_EQ(form().Command7.caption(), u"Spider");
    EXPECT_EQ(server.requests().back(), "/missing");
}

TEST_F(Spider, EndsWhenItIsCancelledWhileAPageDoesNotAnswer) {
    ASSERT_TRUE(ready);
    form().Inet1.request_timeout = 5;
    user.expect(QStringLiteral("Cancell Spider?"), QMessageBox::Yes, QStringLiteral("Spider"));
    QTimer impatience;
    QObject::connect(&impatience, &QTimer::timeout, &impatience, [&] {
        if (server.requests().back() != "/silent") return;
        impatience.stop();
        user.click("Form20", "Command7");
    });
    impatience.start(50);
    user.click("Form20", "Command7");

    EXPECT_TRUE(logged(u" - Process Cancelled"));
    EXPECT_EQ(form().List1.list_count(), 0) << "nothing is listed";
    EXPECT_EQ(server.requests().back(), "/silent") << "no page is asked for behind it";
}

} // namespace
} // namespace twk
