// SPDX-License-Identifier: MIT
#include "desktop/browser.h"

#include "desktop/qt_text.h"
#include "platform/file_system.h"
#include "platform/html.h"

#include <QApplication>
#include <QEventLoop>
#include <QPainter>
#include <QPointer>
#include <QUrl>
#include <QVBoxLayout>
#include <QVariant>
#include <QWebEngineDownloadRequest>
#include <QWebEngineHistory>
#include <QWebEngineLoadingInfo>
#include <QWebEnginePage>
#include <QWebEngineProfile>
#include <QWebEngineScript>
#include <QWebEngineSettings>
#include <QWebEngineView>
#include <chrono>
#include <csignal>
#include <memory>
#include <utility>

namespace twk {

namespace {

using namespace std::chrono_literals;

constexpr auto html_delay = 40ms;
constexpr auto answer_time = 10s;
/// A navigation that a living page has not taken up by then leads nowhere; a page that has not answered by
/// then is given up.
constexpr auto patience = 3s;
constexpr auto patience_at_start = 30s;
const QString blank_page = QStringLiteral("about:blank");

/// A page without dialogs of its own.
class QuietPage : public QWebEnginePage {
  public:
    QuietPage(QWebEngineProfile* profile, QObject* parent) : QWebEnginePage(profile, parent) {}

  protected:
    void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel, const QString&, int,
                                  const QString&) override {}
    void javaScriptAlert(const QUrl&, const QString&) override {}
    /// Questions of a page are answered by No, but leaving it is the user's own wish.
    bool javaScriptConfirm(const QUrl&, const QString& question) override {
        return question == QCoreApplication::translate("QWebEnginePage",
                                                       "Are you sure you want to leave this page? Changes "
                                                       "that you made may not be saved.");
    }
    bool javaScriptPrompt(const QUrl&, const QString&, const QString&, QString*) override { return false; }
    QWebEnginePage* createWindow(WebWindowType) override { return this; }
};

/// One profile for all browsers of the program, kept in memory alone.
QWebEngineProfile& shared_profile() {
    static QPointer<QWebEngineProfile> profile;
    if (profile.isNull()) {
        profile = new QWebEngineProfile(qApp);
        QObject::connect(profile, &QWebEngineProfile::downloadRequested,
                         [](QWebEngineDownloadRequest* request) { request->cancel(); });
    }
    return *profile;
}

/// A local path may carry an anchor behind "#", which a file's own name may hold as well.
QUrl to_url(const QString& address) {
    if (!address.startsWith(u'/')) return QUrl::fromUserInput(address);
    const Text whole = from_qt(address);
    const qsizetype mark = address.lastIndexOf(u'#');
    if (mark < 0 || file_exists(whole)) return QUrl::fromLocalFile(QString::fromStdString(disk_path(whole)));
    QUrl url = QUrl::fromLocalFile(QString::fromStdString(disk_path(from_qt(address.left(mark)))));
    url.setFragment(address.mid(mark + 1));
    return url;
}

} // namespace

BrowserView::BrowserView(QWidget* parent) : QWidget(parent) {
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(1, 1, 1, 1);
    setFocusPolicy(Qt::StrongFocus);
    html_timer_.setSingleShot(true);
    html_timer_.setInterval(html_delay);
    connect(&html_timer_, &QTimer::timeout, this, &BrowserView::show_waiting_html);
    watch_.setSingleShot(true);
    connect(&watch_, &QTimer::timeout, this, &BrowserView::look_after);
}

BrowserView::~BrowserView() = default;

QWebEngineView& BrowserView::view() {
    if (view_ != nullptr) return *view_;
    view_ = new QWebEngineView(this);
    view_->setPage(new QuietPage(&shared_profile(), view_));
    view_->settings()->setAttribute(QWebEngineSettings::JavascriptCanOpenWindows, false);
    setFocusProxy(view_);
    layout()->addWidget(view_);
    connect(view_, &QWebEngineView::urlChanged, this, &BrowserView::take_address);
    connect(view_->page(), &QWebEnginePage::loadingChanged, this, &BrowserView::follow);
    connect(view_->page(), &QWebEnginePage::renderProcessTerminated, this, &BrowserView::process_ended,
            Qt::QueuedConnection);
    return *view_;
}

void BrowserView::follow(const QWebEngineLoadingInfo& loading) {
    const auto is = [&loading](const QUrl& url) {
        return loading.url().matches(url, QUrl::StripTrailingSlash | QUrl::RemoveFragment);
    };
    // What ends may be the page that is left, one that has been broken off, or the blank page that a fresh
    // engine begins with.
    const bool another = is(left_) || is(asked_before_) || is(QUrl(blank_page));
    begun_ = true;
    loading_ = loading.status() == QWebEngineLoadingInfo::LoadStartedStatus;
    if (loading_) told_ = false;
    if (!another || is(asked_)) pending_ = false;
    tell_end();
}

/// A change of address without loading is a navigation within the page.
void BrowserView::take_address(const QUrl& url) {
    Q_EMIT located(url.toString(QUrl::FullyEncoded));
    if (asked_.isEmpty() || url == asked_) pending_ = false;
    if (!busy()) told_ = false;
    tell_end();
}

/// Tells the end of a navigation, once.
void BrowserView::tell_end() {
    if (busy() || told_) return;
    told_ = true;
    if (html_.isEmpty()) Q_EMIT finished();
}

/// Some addresses lead nowhere without a word. A page whose script does not end lets nothing take its place:
/// its process is ended, and the navigation begun anew.
void BrowserView::look_after() {
    if (answered_) {
        pending_ = false;
        tell_end();
        return;
    }
    answered_ = true;
    watch_.start(patience_at_start);
    const qint64 process = view_->page()->renderProcessPid();
    if (view_->url() != left_ || process <= 0) return;
    given_up_ = true;
    ::kill(static_cast<pid_t>(process), SIGKILL);
}

void BrowserView::process_ended() {
    if (std::exchange(given_up_, false)) {
        pending_ = true;
        go_();
    } else {
        pending_ = loading_ = false;
        tell_end();
    }
}

/// An empty page, as long as no engine paints over it.
void BrowserView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Mid));
    painter.setBrush(palette().base());
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

bool BrowserView::navigate(const QString& address) {
    const QString target = address.trimmed();
    if (target.isEmpty()) return true;
    const QUrl url = to_url(target);
    if (!url.isValid() || url.isEmpty()) return false;
    if (home_.isEmpty() && target != blank_page) home_ = target;
    load(url);
    return true;
}

void BrowserView::load(const QUrl& url) {
    html_timer_.stop();
    html_.clear();
    if (view_ == nullptr && url == QUrl(blank_page)) return; // an empty control is blank without an engine
    view().settings()->setAttribute(QWebEngineSettings::JavascriptEnabled, true);
    leave_page(url, [this, url] { view_->load(url); });
}

/// Begins a navigation, and sees to it that it ends.
void BrowserView::leave_page(const QUrl& asked, std::function<void()> go) {
    asked_before_ = busy() ? asked_ : QUrl();
    asked_ = asked;
    left_ = view_->url();
    told_ = false;
    // A script for an address runs in the page that stands there.
    pending_ = asked.scheme() != QStringLiteral("javascript");
    go_ = std::move(go);
    answered_ = !begun_;
    if (begun_)
        view_->page()->runJavaScript(QStringLiteral("1"), QWebEngineScript::ApplicationWorld,
                                     [view = QPointer(this)](const QVariant&) {
                                         if (!view.isNull()) view->answered_ = true;
                                     });
    watch_.start(begun_ ? patience : patience_at_start);
    go_();
    QTimer::singleShot(0, this, &BrowserView::tell_end);
}

void BrowserView::show_html(const QString& html) {
    html_ = html;
    if (!html_timer_.isActive()) html_timer_.start();
}

void BrowserView::show_waiting_html() {
    if (html_.isEmpty() || !isVisible()) return;
    if (busy()) { // with the page before
        html_timer_.start();
        return;
    }
    // A page that is looked at while it is measured must not lead away by its script.
    view().settings()->setAttribute(QWebEngineSettings::JavascriptEnabled, false);
    view().setHtml(html_);
}

void BrowserView::go_back() {
    if (view_ == nullptr || !view_->history()->canGoBack()) return;
    leave_page(QUrl(), [this] { view_->back(); });
}

void BrowserView::go_forward() {
    if (view_ == nullptr || !view_->history()->canGoForward()) return;
    leave_page(QUrl(), [this] { view_->forward(); });
}

void BrowserView::go_home() {
    if (!home_.isEmpty()) load(to_url(home_));
}

QVariant BrowserView::ask_page(const QString& script) {
    if (view_ == nullptr) return {};
    // The answer may come after this call has given up waiting, hence shared.
    const auto answer = std::make_shared<QVariant>();
    QEventLoop loop;
    const QPointer<QEventLoop> waiting(&loop);
    connect(view_, &QObject::destroyed, &loop, &QEventLoop::quit);
    QTimer::singleShot(answer_time, &loop, &QEventLoop::quit);
    view_->page()->runJavaScript(script, QWebEngineScript::ApplicationWorld,
                                 [answer, waiting](const QVariant& value) {
                                     *answer = value;
                                     if (!waiting.isNull()) waiting->quit();
                                 });
    loop.exec();
    return *answer;
}

QString BrowserView::inner_text() {
    if (!html_.isEmpty()) return to_qt(visible_text(from_qt(html_)));
    QString text = ask_page(QStringLiteral("document.body ? document.body.innerText : ''")).toString();
    text.remove(u'\r');
    return text.replace(u'\n', QStringLiteral("\r\n"));
}

QStringList BrowserView::links() {
    // A link within a drawing has a name in small letters and is none.
    return ask_page(
               QStringLiteral("Array.from(document.querySelectorAll('a[href]')).filter(a => a.tagName === "
                              "'A').map(a => a.href)"))
        .toStringList();
}

} // namespace twk
