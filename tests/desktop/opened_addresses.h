// SPDX-License-Identifier: MIT
#pragma once

#include <QDesktopServices>
#include <QList>
#include <QObject>
#include <QUrl>

namespace twk::test {

/// Stands for the system's program that opens addresses of one scheme.
class OpenedAddresses : public QObject {
    Q_OBJECT
  public:
    explicit OpenedAddresses(const QString& scheme) : scheme_(scheme) {
        QDesktopServices::setUrlHandler(scheme, this, "open");
    }
    ~OpenedAddresses() override { QDesktopServices::unsetUrlHandler(scheme_); }

    QList<QUrl> urls;

  public Q_SLOTS:
    void open(const QUrl& url) { urls << url; }

  private:
    QString scheme_;
};

} // namespace twk::test
