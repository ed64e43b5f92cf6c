// SPDX-License-Identifier: MIT
#include "desktop/qt_text.h"

#include <QStringList>

namespace twk {

QString wrapped(const QString& caption, int columns) {
    QString lines;
    qsizetype length = 0;
    for (const QString& word : caption.split(u' ')) {
        if (length > 0 && length + 1 + word.size() > columns) {
            lines += u'\n';
            length = 0;
        } else if (!lines.isEmpty()) {
            lines += u' ';
            ++length;
        }
        lines += word;
        length += word.size();
    }
    return lines;
}

QString plain_family(const QString& family) {
    const qsizetype at = family.indexOf(QStringLiteral(" ["));
    return at > 0 && family.endsWith(u']') ? family.left(at) : family;
}

} // namespace twk
