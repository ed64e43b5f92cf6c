// SPDX-License-Identifier: MIT
#include "desktop/browser.h"
#include "desktop/qt_text.h"
#include "inputs/form3.h"
#include "inputs/form5.h"
#include "page_server.h"
#include "support/faults.h"
#include "tools/form11.h"
#include "tools/form19.h"
#include "tools/form20.h"
#include "tools/form21.h"
#include "user.h"

#include <QElapsedTimer>
#include <QLineEdit>
#include <QTest>
#include <QThread>

namespace twk {
namespace {

using test::PageServer;
using test::User;

class Browser : public test::WindowTest {
  protected:
    Browser() {
        server.page("/one", "<html><head><title>One</title><script>nonsense(</script></head><body><h1>First "
                            "page</h1><script>document.title='x'; missing.call();</script>"
                            "<p>caf\xc3\xa9</p><a name=here>anchor</a><svg width=9 height=9><a href='drawn'>"
                            "<text>x</text></a></svg><a href='two'>next</a>"
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

    QString url(const char* path) const { return server.address(QString::fromLatin1(path)); }
    /// Opens the browser of Step 3 at a path.
    WebBrowser& surf(const char* path, bool rests = true) {
        screens().dispatch([&] {
            screen<Form5>().Text2.text = from_qt(url(path));
            screens().show<Form11>();
        });
        EXPECT_TRUE(!rests || at(screen<Form11>().wb1, url(path)));
        return screen<Form11>().wb1;
    }

    PageServer server;
};

TEST_F(Browser, SurfsAndPicksUpTheTextOfAPage) {
    WebBrowser& browser = surf("/one");
    EXPECT_EQ(user.find<QLineEdit>("Form11", "Text1")->text(), url("/one"));

    user.click("Form11", "Command1");
    const Text picked = screen<Form5>().rt1.text();
    EXPECT_TRUE(contains(picked, u"First page<p>\n")) << to_utf8(picked);
    EXPECT_TRUE(contains(picked, u"café")) << to_utf8(picked);
    EXPECT_FALSE(contains(picked, u"missing")) << to_utf8(picked);

    user.type("Form11", "Text1", url("/two"));
    user.click("Form11", "Command5");
    ASSERT_TRUE(at(browser, url("/two"))) << "an alert would have blocked";
    user.click("Form11", "Command2");
    EXPECT_TRUE(at(browser, url("/one"))) << "back";
    user.click("Form11", "Command3");
    EXPECT_TRUE(at(browser, url("/two"))) << "forward";
}

TEST_F(Browser, TellsTheLinksOfAPageInTheirOrderResolved) {
    screens().dispatch([] { screens().show<Form20>(); });
    WebBrowser& browser = screen<Form20>().wb1;
    user.type("Form20", "Text2", url("/one"));
    user.click("Form20", "Command8");
    ASSERT_TRUE(at(browser, url("/one")));
    std::vector<Text> addresses;
    for (const Link& each : qt.links(browser)) addresses.push_back(each.address);
    EXPECT_EQ(addresses, (std::vector<Text>{from_qt(url("/two")), u"http://elsewhere.example/x?y=1"}));
}

TEST_F(Browser, ComesToRestWhateverItIsAskedFor) {
    server.page("/moving", "<body onload=\"setTimeout(()=>history.pushState(0,'','/moved'),50)\">x</body>");
    surf("/one");
    Form11& form = screen<Form11>();
    const auto go = [&](const QString& address) {
        qt.navigate(form.wb1, from_qt(address));
        EXPECT_TRUE(qt.busy(form.wb1));
    };
    go(url("/one"));
    go(url("/two"));
    EXPECT_TRUE(at(form.wb1, url("/two"))) << "one behind another";
    for (const char* same_page : {"/two#end", "/two#end", "/moving"}) {
        go(url(same_page));
        const bool moves = QByteArray(same_page) == "/moving";
        EXPECT_TRUE(at(form.wb1, url(moves ? "/moved" : same_page)));
    }
    EXPECT_EQ(form.Text1.text(), form.wb1.location_url()) << "follows within the page, too";
    user.type("Form11", "Text1", QStringLiteral("javascript:void 0"));
    user.click("Form11", "Command5");
    EXPECT_TRUE(at(form.wb1, url("/moved")));
    user.expect(QStringLiteral("\"hello world\" is not an address."));
    user.type("Form11", "Text1", QStringLiteral("hello world"));
    user.click("Form11", "Command5");
    EXPECT_FALSE(qt.busy(form.wb1));
}

TEST_F(Browser, LeavesPagesThatWouldKeepItsUser) {
    server.page("/asks", "<body><script>onbeforeunload = e => { e.preventDefault(); return 'stay'; }"
                         "</script>x</body>");
    server.page("/stuck", "<body><script>setTimeout(() => { while (1); }, 1000)</script>x</body>");
    WebBrowser& browser = surf("/asks");
    auto* const view = user.find<QWidget>("Form11", "wb1");
    QTest::mouseClick(view->focusProxy()->focusProxy(), Qt::LeftButton); // else no page may ask
    User::settle(200);
    qt.navigate(browser, from_qt(url("/stuck")));
    ASSERT_TRUE(at(browser, url("/stuck"))) << "the question is answered by Yes";
    User::settle(1200);
    user.type("Form11", "Text1", url("/two"));
    user.click("Form11", "Command5");
    EXPECT_TRUE(at(browser, url("/two"))) << "its process is given up";
}

TEST_F(Browser, FetchesSuggestionsWithinSecondsAndIsCancelledAtAnyMoment) {
    PageServer server(test::service_port());
    const QByteArray service = "/d/searchinventory/suggestion/?term=";
    server.page(service + "green%20tea", "<a href='/s?term=white%20tea&mkt=us'>x</a>");
    server.hold_back(service + "slow");
    screens().dispatch([] { screen<Form3>().List1.add_item(u"green tea"); });
    QElapsedTimer took;
    took.start();
    screens().dispatch([] { screen<Form3>().cmd_wizard_Click(); });
    EXPECT_LT(took.elapsed(), 8000);
    EXPECT_EQ(screen<Form19>().List1.text(), u"");
    ASSERT_EQ(screen<Form19>().List1.list_count(), 1);
    EXPECT_EQ(screen<Form19>().List1.list(0), u"white tea");

    screens().dispatch([] { screen<Form3>().List1.set_list(0, u"slow"); });
    QTimer::singleShot(600, &qt.window(), [this] { user.click("Form19", "Command4"); });
    took.start();
    screens().dispatch([] { screen<Form3>().cmd_wizard_Click(); });
    EXPECT_LT(took.elapsed(), 5000);
    EXPECT_FALSE(user.sees("Form19"));
}

TEST_F(Browser, ShowsABoxEveryTimeAndKeepsItsFileUntilThen) {
    screens().dispatch([] { screens().show<Form5>(); });
    for (const char16_t* text : {u"<b>first</b> box", u"<b>second</b> box"}) {
        screen<Form5>().rt1.text = text;
        screens().dispatch([] { screen<Form5>().cmdshow_Click(); });
        const Text shown = qt.inner_text(screen<Form21>().WebBrowser1);
        EXPECT_EQ(to_utf8(shown), to_utf8(Replace(Replace(text, u"<b>", u""), u"</b>", u"")));
        EXPECT_FALSE(app.exists(u"delete.htm"));
    }
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
    EXPECT_TRUE(qt.busy(surf("/slow", false)));
    user.close("Form11");
    User::settle(100);
    EXPECT_FALSE(user.sees("Form11"));
}

TEST_F(Browser, TransfersFetchPagesWhileOtherEventsRun) {
    Inet inet;
    bool ran = false;
    QTimer::singleShot(0, &qt.window(), [&] { ran = true; });
    const auto fetch = [&](const char* path) { return qt.fetch(inet, from_qt(url(path))); };
    EXPECT_TRUE(contains(fetch("/one"), u"café"));
    EXPECT_TRUE(ran);
    // Of a page that ends before its end what has come counts; a circle of redirections is a fault, no
    // time-out.
    server.page("/broken", "<p>begun", "text/html; charset=utf-8", 1000);
    EXPECT_EQ(fetch("/broken"), u"<p>begun");
    server.redirect("/moved", url("/one"));
    EXPECT_TRUE(contains(fetch("/moved"), u"First page"));
    server.redirect("/loop", url("/loop"));
    server.page("/large", QByteArray(9 * 1024 * 1024, 'x'));
    const Text large = fetch("/large");
    EXPECT_GT(large.size(), 1024u * 1024u);
    EXPECT_LT(large.size(), 6u * 1024u * 1024u);

    const auto fault_of = [&](const Text& address) {
        return test::fault_of([&] { qt.fetch(inet, address); });
    };
    const int circle = fault_of(from_qt(url("/loop")));
    EXPECT_TRUE(circle != 0 && circle != fault_timed_out) << circle;
    inet.request_timeout = 1;
    server.hold_back("/slow");
    EXPECT_EQ(fault_of(from_qt(url("/slow"))), fault_timed_out);
    EXPECT_FALSE(inet.still_executing);
    QElapsedTimer took;
    took.start();
    inet.request_timeout = 20;
    QTimer::singleShot(50, &qt.window(), [&] { qt.cancel(inet); });
    EXPECT_NE(fault_of(from_qt(url("/slow"))), fault_timed_out);
    EXPECT_LT(took.elapsed(), 5000) << "cancelled at once";
    // What has come in time is no time-out, though other events have kept the control waiting.
    inet.request_timeout = 1;
    server.requests.clear();
    QTimer late;
    QObject::connect(&late, &QTimer::timeout, [&, ticks = 0]() mutable {
        if (!server.requests.isEmpty() && ++ticks == 3) QThread::msleep(1500);
    });
    late.start(5);
    EXPECT_TRUE(contains(fetch("/one"), u"First page"));
    late.stop();
    for (const char16_t* refused :
         {u"file:///etc/hostname", u"javascript:alert(1)", u"", u"http://127.0.0.1:1/"}) {
        const int number = fault_of(refused);
        EXPECT_NE(number, 0) << to_utf8(refused);
        EXPECT_NE(number, fault_timed_out) << to_utf8(refused);
    }
}

} // namespace
} // namespace twk
