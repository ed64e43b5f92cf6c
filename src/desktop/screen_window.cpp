// SPDX-License-Identifier: MIT
#include "desktop/screen_window.h"

#include "desktop/form_area.h"
#include "desktop/forms.h"
#include "desktop/qt_text.h"
#include "desktop/report_overview.h"
#include "desktop/room.h"
#include "reports/form12.h"
#include "shell/wizard_state.h"

#include <QCloseEvent>
#include <QDialog>
#include <QEventLoop>
#include <QScreen>
#include <QVBoxLayout>
#include <algorithm>
#include <functional>

namespace twk {

namespace {

/// Room for the frame and title bar that the window manager adds; their size is known only once shown.
constexpr QSize frame_room(16, 48);

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

ScreenWindow::ScreenWindow(Screen& screen, Room& room)
    : room_(room), step_(step_of(screen.name) != 0), form_(make_form(screen.name)) {
    setObjectName(QString::fromStdString(screen.name));
    if (form_ == nullptr) form_ = new QWidget;
    drawn_size_ = form_->size();
    form_area_ = new FormArea(*form_);
    auto* const page = new QVBoxLayout(this);
    page->setContentsMargins(0, 0, 0, 0);
    page->addWidget(form_area_);
    room_.add(*this);

    binding_ = std::make_unique<ScreenBinding>(screen, *form_);
    if (screen.name == Form12::name) add_report_overview(*form_, *binding_);
    const auto show_title = [this, &screen](Prop) {
        setWindowTitle(to_qt(screen.caption()));
        room_.retitle();
    };
    screen.observer.watch(show_title);
    show_title(Prop::caption);
}

ScreenWindow::~ScreenWindow() = default;

bool ScreenWindow::is_open() const {
    return dialog_ != nullptr || room_.is_open(*this);
}

QSize ScreenWindow::wanted_size() const {
    QSize size = drawn_size_.expandedTo(form_->minimumSizeHint());
    size.setHeight(std::max(size.height(), form_area_->least_height(size.width())));
    return size + QSize(2, 2);
}

void ScreenWindow::open() {
    if (dialog_ == nullptr) room_.bring(*this);
}

void ScreenWindow::put_away() {
    room_.put_away(*this);
    if (dialog_ != nullptr) dialog_->hide();
}

void ScreenWindow::retire() {
    binding_->detach();
    put_away();
}

void ScreenWindow::run_modal() {
    ModalFrame dialog(room_.window(), [this] { close_screen(); });
    dialog_ = &dialog;
    dialog.setWindowModality(Qt::ApplicationModal);
    dialog.setWindowTitle(windowTitle());
    auto* const layout = new QVBoxLayout(&dialog);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(form_area_);
    form_area_->show();
    dialog.resize(wanted_size().boundedTo(room_.screen()->availableSize() - frame_room));
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

    this->layout()->addWidget(form_area_);
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
