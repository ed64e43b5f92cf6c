// SPDX-License-Identifier: MIT
#include "desktop/browser.h"

#include "desktop/qt_text.h"
#include "platform/files.h"
#include "platform/html.h"

#include <QApplication>
#include <QEventLoop>
#include <QPainter>
#include <QPointer>
#include <QUrl>
#include <QVBoxLayout>
#include <QVariant>
#include <QWebEngineDownloadRequest>
#include <QWebEngineLoadingInfo>
#include <QWebEnginePage>
#include <QWebEngineProfile>
#include <QWebEngineScript>
#include <QWebEngineSettings>
#include <QWebEngineView>
#include <chrono>
#include <memory>
#include <utility>

namespace twk {

namespace {

using namespace std::chrono_literals;

constexpr auto html_delay = 400ms;
constexpr auto answer_time = 10s;
const QString blank_page = QStringLiteral("about:blank");

/// A page without dialogs of its own.
class QuietPage : public QWebEnginePage {
  public:
    QuietPage(QWebEngineProfile* profile, QObject* parent) : QWebEnginePage(profile, parent) {}

  protected:
    void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel, const QString&, int,
                                  const QString&) override {}
    void javaScriptAlert(const QUrl&, const QString&) override {}
    bool javaScriptConfirm(const QUrl&, const QString&) override { return false; }
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
}

BrowserView::~BrowserView() = default;

QWebEngineView& BrowserView::view() {
    if (view_ != nullptr) return *view_;
    view_ = new QWebEngineView(this);
    view_->setPage(new QuietPage(&shared_profile(), view_));
    view_->settings()->setAttribute(QWebEngineSettings::JavascriptCanOpenWindows, false);
    setFocusProxy(view_);
    layout()->addWidget(view_);
    connect(view_, &QWebEngineView::urlChanged, this,
            [this](const QUrl& url) { Q_EMIT located(url.toString(QUrl::FullyEncoded)); });
    connect(view_->page(), &QWebEnginePage::loadingChanged, this, &BrowserView::follow);
    return *view_;
}

void BrowserView::follow(const QWebEngineLoadingInfo& loading) {
    const auto is = [&loading](const QUrl& url) {
        return loading.url().matches(url, QUrl::StripTrailingSlash | QUrl::RemoveFragment);
    };
    if (loading.status() == QWebEngineLoadingInfo::LoadStartedStatus) {
        busy_ = true;
        return;
    }
    // What ends may be the page before, broken off by the one that has been asked for, or the blank page that
    // a fresh engine begins with.
    const bool another = !asked_.isEmpty() && !is(asked_);
    const bool stopped = loading.status() == QWebEngineLoadingInfo::LoadStoppedStatus;
    if (another && (stopped || is(asked_before_) || is(QUrl(blank_page)))) return;
    busy_ = false;
    asked_.clear();
    if (html_.isEmpty()) Q_EMIT finished();
}

/// An empty page, as long as no engine paints over it.
void BrowserView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Mid));
    painter.setBrush(palette().base());
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void BrowserView::navigate(const QString& address) {
    const QString target = address.trimmed();
    if (target.isEmpty()) return;
    if (home_.isEmpty() && target != blank_page) home_ = target;
    load(target);
}

void BrowserView::load(const QString& address) {
    html_timer_.stop();
    html_.clear();
    if (view_ == nullptr && address == blank_page) return; // an empty control is blank without an engine
    view().settings()->setAttribute(QWebEngineSettings::JavascriptEnabled, true);
    asked_before_ = std::exchange(asked_, to_url(address)); // empty when that one has ended
    busy_ = true;
    view().load(asked_);
}

void BrowserView::show_html(const QString& html) {
    html_ = html;
    if (!html_timer_.isActive()) html_timer_.start();
}

void BrowserView::show_waiting_html() {
    if (html_.isEmpty() || !isVisible()) return;
    // A page that is looked at while it is measured must not lead away by its script.
    view().settings()->setAttribute(QWebEngineSettings::JavascriptEnabled, false);
    view().setHtml(html_);
}

void BrowserView::go_back() {
    asked_.clear();
    if (view_ != nullptr) view_->back();
}

void BrowserView::go_forward() {
    asked_.clear();
    if (view_ != nullptr) view_->forward();
}

void BrowserView::go_home() {
    if (!home_.isEmpty()) load(home_);
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
    return ask_page(QStringLiteral("document.body ? document.body.innerText : ''")).toString();
}

QStringList BrowserView::links() {
    return ask_page(QStringLiteral("Array.from(document.querySelectorAll('a[href]'), a => a.href)"))
        .toStringList();
}

} // namespace twk
