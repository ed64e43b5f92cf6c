// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>
#include <QTimer>
#include <QUrl>
#include <QWidget>
#include <functional>

class QWebEngineLoadingInfo;
class QWebEngineView;

namespace twk {

/// The browser control: Qt WebEngine, started when there is something to show. Script errors, alerts and
/// questions of a page are silent, and none keeps its page from being left; a page that wants a new window
/// gets this one; nothing is downloaded.
class BrowserView : public QWidget {
    Q_OBJECT
  public:
    explicit BrowserView(QWidget* parent = nullptr);
    ~BrowserView() override;

    /// Goes to an address or a local file. The first one is the control's home. False, with nothing done, for
    /// a text that cannot be an address.
    bool navigate(const QString& address);
    /// Takes a page's text: its visible text can be had at once, the page is shown when events run.
    void show_html(const QString& html);
    void go_back();
    void go_forward();
    void go_home();
    /// From the moment that an address is asked for until it has been loaded or given up.
    bool busy() const { return pending_ || loading_; }

    /// Visible text of the page's body, lines ended by CR LF. Lets events run until the engine has answered.
    QString inner_text();
    /// Addresses of the page's HTML links in document order, resolved.
    QStringList links();

  Q_SIGNALS:
    void located(const QString& address);
    /// Navigation has ended, with the page or without, or the address has changed within the page.
    void finished();

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QWebEngineView& view();
    void load(const QUrl& url);
    void leave_page(const QUrl& asked, std::function<void()> go);
    void follow(const QWebEngineLoadingInfo& loading);
    void take_address(const QUrl& url);
    void look_after();
    void process_ended();
    void tell_end();
    void show_waiting_html();
    QVariant ask_page(const QString& script);

    QWebEngineView* view_ = nullptr;
    QString home_;
    QString html_;      ///< page text taken by show_html; empty behind a navigation
    QTimer html_timer_; ///< hands on the newest of the pages that follow each other quickly

    // The navigation that has been asked for.
    QUrl asked_;            ///< empty when it goes through the history
    QUrl asked_before_;     ///< the one that it may have broken off
    QUrl left_;             ///< address of the page that it leaves
    bool pending_ = false;  ///< the engine has not yet taken it up
    bool loading_ = false;  ///< the engine is at it
    bool answered_ = true;  ///< the page that is left has shown that it is alive
    bool told_ = true;      ///< its end has been told
    bool begun_ = false;    ///< the engine has loaded something before
    bool given_up_ = false; ///< its page's process has been ended
    std::function<void()> go_;
    QTimer watch_;
};

} // namespace twk
