// SPDX-License-Identifier: MIT
#include "desktop/screen_window.h"

#include "desktop/form_area.h"
#include "desktop/forms.h"
#include "desktop/qt_text.h"

#include <QAction>
#include <QCloseEvent>
#include <QDialog>
#include <QEventLoop>
#include <QMdiArea>
#include <QMenu>
#include <QVBoxLayout>
#include <algorithm>
#include <functional>

namespace twk {

namespace {

/// A dialog whose close box asks the screen.
class ModalFrame : public QDialog {
  public:
    ModalFrame(QWidget* parent, std::function<void()> closed) : QDialog(parent), closed_(std::move(closed)) {}

    void reject() override { closed_(); }

  protected:
    void closeEvent(QCloseEvent* event) override {
        event->ignore();
        closed_();
    }

  private:
    std::function<void()> closed_;
};

} // namespace

ScreenWindow::ScreenWindow(Screen& screen, QMdiArea& area) : area_(area), form_(make_form(screen.name)) {
    setObjectName(QString::fromStdString(screen.name));
    if (form_ == nullptr) form_ = new QWidget;
    drawn_size_ = form_->size();
    form_area_ = new FormArea(*form_);
    setWidget(form_area_);
    area_.addSubWindow(this);
    hide();

    // Ctrl+W belongs to the main menu; Ctrl+F4 still closes the window.
    for (QAction* each : systemMenu()->actions()) {
        QList<QKeySequence> keys = each->shortcuts();
        keys.removeAll(QKeySequence(Qt::CTRL | Qt::Key_W));
        each->setShortcuts(keys);
    }

    binding_ = std::make_unique<ScreenBinding>(screen, *form_);
    const auto show_title = [this, &screen](Prop) { setWindowTitle(to_qt(screen.caption())); };
    screen.observer.watch(show_title);
    show_title(Prop::caption);
}

ScreenWindow::~ScreenWindow() = default;

QSize ScreenWindow::wanted_size() const {
    QSize size = drawn_size_.expandedTo(form_->minimumSizeHint());
    size.setHeight(std::max(size.height(), form_area_->least_height(size.width())));
    return size + QSize(2, 2);
}

void ScreenWindow::place() {
    if (placed_) return;
    placed_ = true;
    const QSize frame = size() - contentsRect().size();
    const QSize room = area_.viewport()->size();
    resize((wanted_size() + frame).boundedTo(room));
    const QPoint free(std::max(0, room.width() - width()), std::max(0, room.height() - height()));
    const int step = 24 * static_cast<int>(area_.subWindowList().size() - 1);
    move(std::min(free.x(), step), std::min(free.y(), step));
}

void ScreenWindow::open() {
    if (dialog_ != nullptr) return;
    if (isMinimized())
        showNormal();
    else
        show();
    place();
    area_.setActiveSubWindow(this);
}

void ScreenWindow::put_away() {
    hide();
    if (dialog_ != nullptr) dialog_->hide();
}

void ScreenWindow::retire() {
    binding_->detach();
    put_away();
}

void ScreenWindow::run_modal() {
    hide();
    ModalFrame dialog(area_.window(), [this] { close_screen(); });
    dialog_ = &dialog;
    dialog.setWindowModality(Qt::ApplicationModal);
    dialog.setWindowTitle(windowTitle());
    auto* const layout = new QVBoxLayout(&dialog);
    layout->setContentsMargins(0, 0, 0, 0);
    setWidget(nullptr);
    layout->addWidget(form_area_);
    form_area_->show();
    dialog.resize(wanted_size());
    dialog.show();

    QEventLoop loop;
    struct HideWatch : QObject {
        explicit HideWatch(QEventLoop& loop) : loop(loop) {}
        bool eventFilter(QObject*, QEvent* event) override {
            if (event->type() == QEvent::Hide) loop.quit();
            return false;
        }
        QEventLoop& loop;
    } watch(loop);
    dialog.installEventFilter(&watch);
    if (screen() != nullptr && screen()->visible) loop.exec();

    layout->removeWidget(form_area_);
    setWidget(form_area_);
    dialog_ = nullptr;
}

void ScreenWindow::close_screen() {
    if (screen() != nullptr) binding_->run([this] { screens().close(*screen()); });
}

void ScreenWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    close_screen();
}

} // namespace twk
