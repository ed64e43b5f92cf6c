// SPDX-License-Identifier: MIT
#include "desktop/browser.h"
#include "desktop/qt_text.h"
#include "inputs/form5.h"
#include "page_server.h"
#include "support/faults.h"
#include "tools/form11.h"
#include "tools/form20.h"
#include "user.h"

#include <QLineEdit>
#include <QTest>

namespace twk {
namespace {

using test::PageServer;
using test::User;

class Browser : public test::WindowTest {
  protected:
    Browser() {
        server.page("/one", "<html><head><title>One</title><script>nonsense(</script></head><body><h1>First "
                            "page</h1><script>document.title='x'; missing.call();</script>"
                            "<p>caf\xc3\xa9</p><a name=here>anchor</a><a href='two'>next</a>"
                            "<a href='http://elsewhere.example/x?y=1'>away</a></body></html>");
        server.page(
            "/two",
            "<html><body>Second page<script>alert('stop'); window.open('one');</script></body></html>");
    }

    /// Waits until the browser has come to rest at an address.
    bool at(WebBrowser& browser, const QString& address) {
        if (QTest::qWaitFor([&] { return !qt.busy(browser) && to_qt(browser.location_url()) == address; },
                            30000))
            return true;
        ADD_FAILURE() << "still at " << to_utf8(browser.location_url()) << (qt.busy(browser) ? ", busy" : "");
        return false;
    }

    PageServer server;
};

TEST_F(Browser, SurfsAndPicksUpTheTextOfAPage) {
    screens().dispatch([&] {
        screen<Form5>().Text2.text = from_qt(server.address(QStringLiteral("/one")));
        screens().show<Form11>();
    });
    WebBrowser& browser = screen<Form11>().wb1;
    ASSERT_TRUE(at(browser, server.address(QStringLiteral("/one"))));
    EXPECT_EQ(user.find<QLineEdit>("Form11", "Text1")->text(), server.address(QStringLiteral("/one")));

    user.click("Form11", "Command1");
    const Text picked = screen<Form5>().rt1.text();
    EXPECT_TRUE(contains(picked, u"First page")) << to_utf8(picked);
    EXPECT_TRUE(contains(picked, u"café")) << to_utf8(picked);
    EXPECT_FALSE(contains(picked, u"missing")) << to_utf8(picked);

    user.type("Form11", "Text1", server.address(QStringLiteral("/two")));
    user.click("Form11", "Command5");
    ASSERT_TRUE(at(browser, server.address(QStringLiteral("/two")))) << "an alert would have blocked";
    user.click("Form11", "Command2");
    EXPECT_TRUE(at(browser, server.address(QStringLiteral("/one")))) << "back";
    user.click("Form11", "Command3");
    EXPECT_TRUE(at(browser, server.address(QStringLiteral("/two")))) << "forward";
}

TEST_F(Browser, TellsTheLinksOfAPageInTheirOrderResolved) {
    screens().dispatch([] { screens().show<Form20>(); });
    WebBrowser& browser = screen<Form20>().wb1;
    user.type("Form20", "Text2", server.address(QStringLiteral("/one")));
    user.click("Form20", "Command8");
    ASSERT_TRUE(at(browser, server.address(QStringLiteral("/one"))));
    std::vector<Text> addresses;
    for (const Link& each : qt.links(browser)) addresses.push_back(each.address);
    EXPECT_EQ(addresses, (std::vector<Text>{from_qt(server.address(QStringLiteral("/two"))),
                                            u"http://elsewhere.example/x?y=1"}));
}

TEST_F(Browser, TakesPageTextsAtOnceAndNeverFollowsTheirScripts) {
    BrowserView view;
    view.show_html(
        QStringLiteral("<html><body>plain <script>location='http://elsewhere.example'</script>words"
                       "</body></html>"));
    EXPECT_EQ(view.inner_text().simplified(), QStringLiteral("plain words"));
    EXPECT_FALSE(view.busy());
}

TEST_F(Browser, MayBeClosedWhileItLoads) {
    server.hold_back("/slow");
    screens().dispatch([&] {
        screen<Form5>().Text2.text = from_qt(server.address(QStringLiteral("/slow")));
        screens().show<Form11>();
    });
    EXPECT_TRUE(qt.busy(screen<Form11>().wb1));
    user.close("Form11");
    User::settle(100);
    EXPECT_FALSE(user.sees("Form11"));
}

TEST_F(Browser, TransfersFetchPagesWhileOtherEventsRun) {
    Inet inet;
    bool ran = false;
    QTimer::singleShot(0, &qt.window(), [&] { ran = true; });
    const auto fetch = [&](const char* path) {
        return qt.fetch(inet, from_qt(server.address(QString::fromLatin1(path))));
    };
    EXPECT_TRUE(contains(fetch("/one"), u"café"));
    EXPECT_TRUE(ran);
    for (const char* type : {"text/html; charset=ISO-8859-1", "text/html"}) {
        server.page("/latin", "<p>caf\xe9</p>", type);
        EXPECT_EQ(fetch("/latin"), u"<p>café</p>") << type;
    }
    server.page("/large", QByteArray(9 * 1024 * 1024, 'x'));
    const Text large = fetch("/large");
    EXPECT_GT(large.size(), 1024u * 1024u);
    EXPECT_LT(large.size(), 6u * 1024u * 1024u);

    const auto fault_of = [&](const Text& address) {
        return test::fault_of([&] { qt.fetch(inet, address); });
    };
    inet.request_timeout = 1;
    server.hold_back("/slow");
    EXPECT_EQ(fault_of(from_qt(server.address(QStringLiteral("/slow")))), fault_timed_out);
    EXPECT_FALSE(inet.still_executing);
    for (const char16_t* refused :
         {u"file:///etc/hostname", u"javascript:alert(1)", u"", u"http://127.0.0.1:1/"}) {
        const int number = fault_of(refused);
        EXPECT_NE(number, 0) << to_utf8(refused);
        EXPECT_NE(number, fault_timed_out) << to_utf8(refused);
    }
}

} // namespace
} // namespace twk
