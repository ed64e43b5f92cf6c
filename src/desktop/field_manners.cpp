// SPDX-License-Identifier: MIT
#include "desktop/field_manners.h"

#include "desktop/binder.h"
#include "desktop/qt_text.h"
#include "platform/desktop.h"
#include "platform/paths.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QFileDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>

namespace twk {

LinePaste::LinePaste(ScreenBinding& binding, QLineEdit& line, const std::function<void(const Text&)>& take)
    : QObject(&binding), binding_(binding), line_(line), take_(take) {
    line.installEventFilter(this);
}

/// Whether the screen has got it.
bool LinePaste::take(const QMimeData* pasted) {
    if (pasted == nullptr || !pasted->hasText() || binding_.screen() == nullptr) return false;
    const QString text = pasted->text();
    if (!text.trimmed().contains(u'\n') && !text.trimmed().contains(u'\r')) return false;
    binding_.run([this, lines = from_qt(text)] { take_(lines); });
    return true;
}

bool LinePaste::eventFilter(QObject*, QEvent* event) {
    switch (event->type()) {
    case QEvent::KeyPress:
        return static_cast<QKeyEvent*>(event)->matches(QKeySequence::Paste) &&
               take(QApplication::clipboard()->mimeData());
    case QEvent::Drop: return take(static_cast<QDropEvent*>(event)->mimeData());
    case QEvent::ContextMenu: show_menu(static_cast<QContextMenuEvent*>(event)->globalPos()); return true;
    default: return false;
    }
}

/// The line's own menu, whose Paste does the same.
void LinePaste::show_menu(const QPoint& place) {
    QMenu* const menu = line_.createStandardContextMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    if (auto* const paste = menu->findChild<QAction*>(QStringLiteral("edit-paste"))) {
        paste->disconnect(&line_);
        connect(paste, &QAction::triggered, this, [this] {
            if (!take(QApplication::clipboard()->mimeData())) line_.paste();
        });
    }
    menu->popup(place);
}

namespace {

template <class C> C* control_named(const Screen& screen, const QString& name) {
    const ScreenMap::Control* const control = screen.map.find_control(name.toStdString());
    C* const* const found = control != nullptr ? std::get_if<C*>(&control->ref) : nullptr;
    return found != nullptr ? *found : nullptr;
}

void raise(const Screen& screen, const QString& control, const char* event) {
    if (const auto* const found = screen.map.find_event(control.toStdString(), event)) found->run();
}

void browse(const ScreenBinding& binding, const QStringList& lists, const QString& folder_title) {
    const Screen& screen = *binding.screen();
    auto* const folders = control_named<DirListBox>(screen, lists.value(0));
    auto* const files = control_named<FileListBox>(screen, lists.value(1));
    if (folders == nullptr) return;
    Text folder, file;
    if (files != nullptr) {
        const auto chosen = desktop().ask_open_file({.title = u"Choose a file",
                                                     .start_folder = folders->path(),
                                                     .filter = files->pattern(),
                                                     .file_name = {},
                                                     .ending = {}});
        if (!chosen || binding.screen() == nullptr) return;
        folder = folder_of(TextView(*chosen));
        file = last_name(TextView(*chosen));
    } else {
        folder = from_qt(QFileDialog::getExistingDirectory(QApplication::activeWindow(), folder_title,
                                                           to_qt(folders->path())));
        if (folder.empty() || binding.screen() == nullptr) return;
    }
    folders->set_path(folder);
    raise(screen, lists[0], "Change");
    if (files == nullptr) return;
    files->list_index = files->place_of(file);
    if (files->list_index() >= 0) raise(screen, lists[1], "Click");
}

} // namespace

void browse_by(QAbstractButton& button, ScreenBinding& binding, QWidget& form) {
    const QStringList lists = button.property("browses").toString().split(u',', Qt::SkipEmptyParts);
    if (lists.isEmpty()) return;
    QObject::connect(&button, &QAbstractButton::clicked, &binding, [&binding, &form, lists] {
        if (binding.screen() != nullptr)
            binding.run([&] { browse(binding, lists, form.tr("Choose a folder")); });
    });
}

} // namespace twk
