// SPDX-License-Identifier: MIT
#include "desktop/transfer.h"

#include "desktop/qt_text.h"
#include "platform/faults.h"
#include "platform/files.h"

#include <QEventLoop>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QStringDecoder>
#include <QTimer>
#include <QUrl>
#include <algorithm>
#include <memory>
#include <string_view>

namespace twk {

namespace {

constexpr qint64 longest_reply = 4 * 1024 * 1024;

struct LaterDelete {
    void operator()(QNetworkReply* reply) const {
        reply->abort();
        reply->deleteLater();
    }
};

/// The reply in the character set that its server names; else as a file would be read.
Text decoded(const QByteArray& bytes, const QString& content_type) {
    const qsizetype at = content_type.indexOf(QStringLiteral("charset="), 0, Qt::CaseInsensitive);
    if (at >= 0) {
        QString name = content_type.mid(at + 8).section(u';', 0, 0).trimmed();
        name.remove(u'"');
        QStringDecoder decoder(name.toLatin1().constData());
        if (decoder.isValid()) return from_qt(decoder(bytes));
    }
    return decode_text(std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size())));
}

} // namespace

Text Transfer::fetch(Inet& inet, const Text& address) {
    const QUrl url(to_qt(address).trimmed());
    if (url.scheme() != QStringLiteral("http") && url.scheme() != QStringLiteral("https"))
        throw RuntimeFault(fault_file_not_found);

    QNetworkRequest request(url);
    request.setHeader(QNetworkRequest::UserAgentHeader, QStringLiteral("Mozilla/5.0 (compatible; Tarnwick)"));
    const std::unique_ptr<QNetworkReply, LaterDelete> reply(manager_.get(request));
    QByteArray bytes;
    QEventLoop loop;
    bool timed_out = false;
    const auto take = [&] {
        bytes += reply->read(longest_reply - bytes.size());
        if (bytes.size() >= longest_reply) loop.quit();
    };
    QObject::connect(reply.get(), &QNetworkReply::readyRead, &loop, take);
    QObject::connect(reply.get(), &QNetworkReply::finished, &loop, &QEventLoop::quit);
    QTimer::singleShot(std::max(inet.request_timeout, 1) * 1000, &loop, [&] {
        timed_out = true;
        loop.quit();
    });

    inet.still_executing = true;
    loop.exec();
    inet.still_executing = false;
    if (timed_out) throw RuntimeFault(fault_timed_out);
    take();
    if (bytes.isEmpty() && reply->error() != QNetworkReply::NoError) throw RuntimeFault(fault_file_not_found);
    return decoded(bytes, reply->header(QNetworkRequest::ContentTypeHeader).toString());
}

} // namespace twk
