// SPDX-License-Identifier: MIT
#include "desktop/looks.h"

#include "desktop/tool_icons.h"

#include <QAbstractButton>
#include <QLabel>

namespace twk {

QFont sized(QFont font, Letters size) {
    const double proportion = size == Letters::small ? 0.87 : size == Letters::heading ? 1.15 : 1.6;
    font.setPointSizeF(font.pointSizeF() * proportion);
    return font;
}

void dress(QWidget& form) {
    for (QLabel* each : form.findChildren<QLabel*>()) {
        if (!each->property("large").toBool()) continue;
        QFont large = sized(each->font(), Letters::title);
        large.setBold(true);
        each->setFont(large);
    }
    for (QAbstractButton* each : form.findChildren<QAbstractButton*>())
        if (const QString sign = each->property("sign").toString(); !sign.isEmpty())
            each->setIcon(tool_icon(sign));
}

} // namespace twk
