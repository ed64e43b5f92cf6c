// SPDX-License-Identifier: MIT
#pragma once

#include "platform/text.h"

#include <QString>

namespace twk {

inline QString to_qt(TextView text) {
    return QString::fromUtf16(text.data(), static_cast<qsizetype>(text.size()));
}

inline Text from_qt(const QString& text) {
    return text.toStdU16String();
}

/// A caption broken into lines of about `columns` characters, for widgets that do not wrap by themselves.
QString wrapped(const QString& caption, int columns);

/// A font's family without the name of its foundry, " [Adobe]", which no page knows.
QString plain_family(const QString& family);

} // namespace twk
