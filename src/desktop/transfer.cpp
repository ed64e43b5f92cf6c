// SPDX-License-Identifier: MIT
#include "desktop/transfer.h"

#include "desktop/qt_text.h"
#include "platform/encoding.h"
#include "platform/faults.h"

#include <QEventLoop>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QRegularExpression>
#include <QStringDecoder>
#include <QTimer>
#include <QUrl>
#include <algorithm>
#include <chrono>
#include <memory>
#include <string_view>

namespace twk {

namespace {

constexpr qint64 longest_reply = 4 * 1024 * 1024;
constexpr auto grace = std::chrono::milliseconds(100);

struct LaterDelete {
    void operator()(QNetworkReply* reply) const {
        reply->abort();
        reply->deleteLater();
    }
};

/// Name of the character set behind "charset=", empty when there is none.
QByteArray charset_in(const QByteArray& text) {
    static const QRegularExpression pattern(QStringLiteral("charset\\s*=\\s*[\"']?\\s*([A-Za-z0-9_:.-]+)"),
                                            QRegularExpression::CaseInsensitiveOption);
    return pattern.match(QString::fromLatin1(text)).captured(1).toLatin1();
}

/// The character set that the page's own meta tags name, near its beginning as everybody looks for it.
QByteArray charset_of_page(const QByteArray& bytes) {
    static const QRegularExpression meta(QStringLiteral("<meta\\s[^>]*>"),
                                         QRegularExpression::CaseInsensitiveOption);
    constexpr qsizetype looked_at = 4096;
    auto tags = meta.globalMatch(QString::fromLatin1(bytes.left(looked_at)));
    while (tags.hasNext()) {
        const QByteArray name = charset_in(tags.next().captured(0).toLatin1());
        if (!name.isEmpty()) return name;
    }
    return {};
}

/// The reply in the character set that its server names, else in the one that the page itself names. Bytes
/// that are none of it, and pages of which nobody tells it, are read as a file would be.
Text decoded(const QByteArray& bytes, const QString& content_type) {
    QByteArray name = charset_in(content_type.toLatin1());
    if (name.isEmpty()) name = charset_of_page(bytes);
    QStringDecoder decoder(name.constData());
    if (!name.isEmpty() && decoder.isValid()) {
        const QString text = decoder(bytes);
        if (!decoder.hasError()) return from_qt(text);
    }
    return decode_text(std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size())));
}

} // namespace

Text Transfer::fetch(Inet& inet, const Text& address) {
    const QUrl url(to_qt(address).trimmed());
    if (url.scheme() != QStringLiteral("http") && url.scheme() != QStringLiteral("https"))
        throw RuntimeFault(fault_file_not_found);

    QNetworkRequest request(url);
    request.setHeader(QNetworkRequest::UserAgentHeader, QStringLiteral("Tarnwick"));
    const std::unique_ptr<QNetworkReply, LaterDelete> reply(manager_.get(request));
    under_way_.push_back({&inet, reply.get()});
    QByteArray bytes;
    QEventLoop loop;
    bool timed_out = false;
    const auto take = [&] {
        bytes += reply->read(longest_reply - bytes.size());
        if (bytes.size() >= longest_reply) loop.quit();
    };
    QObject::connect(reply.get(), &QNetworkReply::readyRead, &loop, take);
    QObject::connect(reply.get(), &QNetworkReply::finished, &loop, &QEventLoop::quit);
    // A reply that came while other events kept this one waiting has arrived in time: what is there already
    // is handled before the time is up.
    QTimer::singleShot(std::max(inet.request_timeout, 1) * 1000, &loop, [&] {
        QTimer::singleShot(grace, &loop, [&] {
            timed_out = !reply->isFinished();
            loop.quit();
        });
    });

    inet.still_executing = true;
    loop.exec();
    std::erase_if(under_way_, [&](const UnderWay& each) { return each.reply == reply.get(); });
    inet.still_executing = std::any_of(under_way_.begin(), under_way_.end(),
                                       [&](const UnderWay& each) { return each.inet == &inet; });
    if (timed_out) throw RuntimeFault(fault_timed_out);
    if (reply->error() == QNetworkReply::OperationCanceledError) throw RuntimeFault(fault_file_not_found);
    take();
    if (bytes.isEmpty() && reply->error() != QNetworkReply::NoError) throw RuntimeFault(fault_file_not_found);
    return decoded(bytes, reply->header(QNetworkRequest::ContentTypeHeader).toString());
}

void Transfer::cancel(const Inet& inet) {
    const std::vector<UnderWay> all = under_way_; // an abort ends its fetch, later
    for (const UnderWay& each : all)
        if (each.inet == &inet) each.reply->abort();
}

} // namespace twk
