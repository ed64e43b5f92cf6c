// SPDX-License-Identifier: MIT
#include "desktop/file_drop.h"

#include "desktop/binder.h"
#include "desktop/qt_text.h"

#include <QAbstractScrollArea>
#include <QDropEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QTimer>
#include <QUrl>
#include <QWidget>

namespace twk {

FileDrop::FileDrop(ScreenBinding& binding, QWidget& form) : QObject(&binding), binding_(binding) {
    if (binding.screen()->taken_files.empty()) return;
    form.setAcceptDrops(true);
    form.installEventFilter(this);
    for (QWidget* each : form.findChildren<QWidget*>())
        if (each->acceptDrops()) each->installEventFilter(this);
}

QString FileDrop::file_of(const QMimeData& dropped) const {
    if (binding_.screen() == nullptr) return {};
    const QStringList endings = to_qt(Text(binding_.screen()->taken_files)).split(u' ');
    for (const QUrl& each : dropped.urls())
        if (endings.contains(u'.' + QFileInfo(each.toLocalFile()).suffix(), Qt::CaseInsensitive))
            return each.toLocalFile();
    return {};
}

bool FileDrop::eventFilter(QObject*, QEvent* event) {
    if (event->type() != QEvent::DragEnter && event->type() != QEvent::DragMove &&
        event->type() != QEvent::Drop)
        return false;
    auto& drop = static_cast<QDropEvent&>(*event);
    const QString file = file_of(*drop.mimeData());
    if (file.isEmpty()) return false;
    drop.setDropAction(Qt::CopyAction);
    drop.accept();
    if (event->type() == QEvent::Drop) // the other program waits until this returns
        QTimer::singleShot(0, this, [this, file] {
            binding_.run([this, file] { binding_.screen()->take_file(from_qt(file)); });
        });
    return true;
}

} // namespace twk
