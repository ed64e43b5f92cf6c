// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>
#include <QTimer>
#include <QUrl>
#include <QWidget>

class QWebEngineLoadingInfo;
class QWebEngineView;

namespace twk {

/// The browser control: Qt WebEngine, started when there is something to show. Script errors, alerts and
/// questions of a page are silent; a page that wants a new window gets this one; nothing is downloaded.
class BrowserView : public QWidget {
    Q_OBJECT
  public:
    explicit BrowserView(QWidget* parent = nullptr);
    ~BrowserView() override;

    /// Goes to an address or a local file. The first one is the control's home.
    void navigate(const QString& address);
    /// Takes a page's text: its visible text can be had at once, the page is shown when events run.
    void show_html(const QString& html);
    void go_back();
    void go_forward();
    void go_home();
    bool busy() const { return busy_; }

    /// Visible text of the page's body. Lets events run until the engine has answered.
    QString inner_text();
    /// Addresses of the page's links in document order, resolved.
    QStringList links();

  Q_SIGNALS:
    void located(const QString& address);
    /// Navigation has ended, with the page or without.
    void finished();

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QWebEngineView& view();
    void load(const QString& address);
    void follow(const QWebEngineLoadingInfo& loading);
    void show_waiting_html();
    QVariant ask_page(const QString& script);

    QWebEngineView* view_ = nullptr;
    QString home_;
    QString html_;      ///< page text taken by show_html; empty behind a navigation
    QTimer html_timer_; ///< shows at most a few of the pages that follow each other quickly
    QUrl asked_;        ///< address asked for whose loading has not ended; empty for none
    QUrl asked_before_; ///< the one that it has broken off
    bool busy_ = false;
};

} // namespace twk
