// SPDX-License-Identifier: MIT
#include "desktop/qt_desktop.h"

#include "desktop/browser.h"
#include "desktop/qt_colour.h"
#include "desktop/qt_text.h"
#include "desktop/screen_window.h"
#include "desktop/user_settings.h"
#include "platform/faults.h"
#include "platform/file_system.h"

#include <QApplication>
#include <QColorDialog>
#include <QDesktopServices>
#include <QFileDialog>
#include <QFontDialog>
#include <QMessageBox>
#include <QOpenGLWidget>
#include <QTimer>
#include <QUrl>
#include <algorithm>
#include <cstdlib>

/// The resources of a static library are linked in by name alone.
static void load_resources() {
    Q_INIT_RESOURCE(resources);
}

namespace twk {

namespace {

/// "Text (*.dat)|*.dat" pairs, or a bare pattern, as the file dialog has them.
QString name_filter(const Text& filter) {
    const std::vector<Text> parts = Split(filter, u"|");
    if (parts.size() < 2) return to_qt(filter);
    QStringList all;
    for (std::size_t i = 0; i + 1 < parts.size(); i += 2) {
        const QString name = to_qt(parts[i]).section(u'(', 0, 0).trimmed();
        all << QStringLiteral("%1 (%2)").arg(name, to_qt(parts[i + 1]).replace(u';', u' '));
    }
    return all.join(QStringLiteral(";;"));
}

ScreenWindow* window_of(const Screen& screen) {
    return static_cast<ScreenWindow*>(screen.front_end);
}

} // namespace

QtDesktop::QtDesktop() {
    load_resources();
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/icons/tarnwick.png")));
    if (qgetenv("QT_QUICK_BACKEND") == "software") return; // browsers do without OpenGL then
    // The first browser in a window that cannot show what is drawn by OpenGL makes that window anew: it turns
    // black and goes in front of the others. With a hidden widget of that kind it can from its beginning.
    if (QGuiApplication::platformName() == QStringLiteral("xcb") ||
        QGuiApplication::platformName().startsWith(QStringLiteral("wayland"))) {
        auto* const surface = new QOpenGLWidget(&window_);
        surface->setObjectName(QStringLiteral("surface"));
        surface->hide();
    }
}
QtDesktop::~QtDesktop() = default;

Answer QtDesktop::MsgBox(const Message& message) {
    QMessageBox box(QApplication::activeWindow() != nullptr ? QApplication::activeWindow() : &window_);
    box.setWindowModality(Qt::ApplicationModal);
    box.setWindowTitle(to_qt(message.title));
    box.setTextFormat(Qt::PlainText);
    box.setText(to_qt(message.text));
    const bool question = message.buttons != Buttons::ok;
    box.setIcon(message.critical ? QMessageBox::Critical
                                 : (question ? QMessageBox::Question : QMessageBox::Information));
    switch (message.buttons) {
    case Buttons::ok: box.setStandardButtons(QMessageBox::Ok); break;
    case Buttons::ok_cancel: box.setStandardButtons(QMessageBox::Ok | QMessageBox::Cancel); break;
    case Buttons::yes_no: box.setStandardButtons(QMessageBox::Yes | QMessageBox::No); break;
    }
    box.setInformativeText(to_qt(message.about));
    if (message.critical) // a statement or a number to be copied from it
        box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    if (message.destructive)
        box.setDefaultButton(message.buttons == Buttons::yes_no ? QMessageBox::No : QMessageBox::Cancel);
    switch (box.exec()) {
    case QMessageBox::Yes: return Answer::yes;
    case QMessageBox::No: return Answer::no;
    case QMessageBox::Ok: return Answer::ok;
    default: break;
    }
    if (message.buttons == Buttons::ok) return Answer::ok;
    return message.buttons == Buttons::yes_no ? Answer::no : Answer::cancel;
}

std::optional<Text> QtDesktop::ask_file(const FileQuestion& question, bool save) {
    QFileDialog dialog(&window_, to_qt(question.title), to_qt(question.start_folder),
                       name_filter(question.filter));
    dialog.setAcceptMode(save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    // The screens say where a dialog begins; the folder used last is one click away.
    if (!last_folder().isEmpty())
        dialog.setSidebarUrls(dialog.sidebarUrls() << QUrl::fromLocalFile(last_folder()));
    dialog.setFileMode(save ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    // The dialog would look for the name as typed; what counts is the name with its ending.
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    if (!question.file_name.empty() && !contains(question.file_name, u"*"))
        dialog.selectFile(to_qt(question.file_name));
    while (dialog.exec() == QDialog::Accepted && !dialog.selectedFiles().isEmpty()) {
        set_last_folder(dialog.directory().absolutePath());
        const Text chosen = from_qt(dialog.selectedFiles().constFirst());
        if (!save || may_write(with_ending(chosen, question.ending), question.title)) return chosen;
    }
    return std::nullopt;
}

/// Whether nothing stands under that name, or the user lets it go.
bool QtDesktop::may_write(const Text& path, const Text& title) {
    if (!file_exists(path)) return true;
    const Text name = Text(last_name(TextView(path)));
    return MsgBox({.text = u"There is a file named " + name + u" already.\nDo you want to replace it?",
                   .buttons = Buttons::yes_no,
                   .title = title,
                   .about = path,
                   .destructive = true}) == Answer::yes;
}

std::optional<Text> QtDesktop::ask_open_file(const FileQuestion& question) {
    return ask_file(question, false);
}

std::optional<Text> QtDesktop::ask_save_file(const FileQuestion& question) {
    return ask_file(question, true);
}

std::optional<std::uint32_t> QtDesktop::ask_color(std::uint32_t start) {
    const QColor chosen = QColorDialog::getColor(to_qt_colour(start), &window_);
    if (!chosen.isValid()) return std::nullopt;
    return static_cast<std::uint32_t>(chosen.red() | chosen.green() << 8 | chosen.blue() << 16);
}

std::optional<FontChoice> QtDesktop::ask_font(const FontChoice& start) {
    QFont font(to_qt(start.name));
    font.setPointSizeF(start.size);
    font.setBold(start.bold);
    font.setItalic(start.italic);
    font.setStrikeOut(start.strikethrough);
    font.setUnderline(start.underline);
    bool accepted = false;
    const QFont chosen = QFontDialog::getFont(&accepted, font, &window_);
    if (!accepted) return std::nullopt;
    return FontChoice{.name = from_qt(plain_family(chosen.family())),
                      .size = chosen.pointSizeF(),
                      .bold = chosen.bold(),
                      .italic = chosen.italic(),
                      .strikethrough = chosen.strikeOut(),
                      .underline = chosen.underline()};
}

void QtDesktop::DoEvents() {
    if (!pumped_.isValid() || pumped_.nsecsElapsed() >= pause_.count()) run_all_events();
}

void QtDesktop::run_all_events() {
    using namespace std::chrono_literals;
    QElapsedTimer took;
    took.start();
    QCoreApplication::processEvents();
    // A slow screen gets no more than half of the time, and what waits for the user does not count.
    pause_ = std::clamp(Pause(took.nsecsElapsed()), Pause(35ms), Pause(200ms));
    pumped_.start();
}

void QtDesktop::wait(std::chrono::milliseconds time, const std::function<bool()>& enough) {
    QTimer alarm;
    alarm.setSingleShot(true);
    alarm.start(time);
    while (alarm.isActive() && !(enough && enough()))
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

void QtDesktop::start(const Text& file_or_address) {
    const QString target = to_qt(file_or_address);
    QUrl url(target);
    if (url.scheme().size() < 2) {
        if (!file_exists(file_or_address)) throw RuntimeFault(fault_file_not_found);
        const QFileInfo file(QString::fromStdString(disk_path(file_or_address)));
        url = QUrl::fromLocalFile(file.absoluteFilePath());
    }
    if (!QDesktopServices::openUrl(url)) throw RuntimeFault(fault_file_not_found);
}

Text QtDesktop::get_setting(TextView section, TextView key, const Text& fallback) {
    return from_qt(user_settings().value(to_qt(section) + u'/' + to_qt(key), to_qt(fallback)).toString());
}

void QtDesktop::say(const Text& what) {
    window_.say(to_qt(what));
}

void QtDesktop::quit() {
    window_.remember();
    if (!window_.menu_event_alone()) std::_Exit(EXIT_SUCCESS);
    QCoreApplication::quit();
}

void QtDesktop::screen_loaded(Screen& screen) {
    if (screen.name == window_.objectName().toStdString())
        window_.bind_menu(screen);
    else
        screen.front_end = &window_.add(screen);
}

void QtDesktop::screen_unloaded(Screen& screen) {
    ScreenWindow* const window = window_of(screen);
    screen.front_end = nullptr;
    if (window != nullptr)
        window_.retire(*window);
    else
        window_.release_menu();
}

void QtDesktop::screen_shown(Screen& screen) {
    if (ScreenWindow* const window = window_of(screen)) window->open();
}

void QtDesktop::screen_hidden(Screen& screen) {
    if (ScreenWindow* const window = window_of(screen)) window->put_away();
}

void QtDesktop::screen_forward(Screen& screen) {
    if (ScreenWindow* const window = window_of(screen)) window->open();
}

void QtDesktop::wait_modal(Screen& screen) {
    if (ScreenWindow* const window = window_of(screen)) window_.run_modal(*window);
}

BrowserView* QtDesktop::view(const WebBrowser& browser) const {
    for (ScreenWindow* window : window_.windows())
        if (BrowserView* found = window->binding().browser(browser)) return found;
    return nullptr;
}

void QtDesktop::navigate(WebBrowser& browser, const Text& address) {
    BrowserView* const shown = view(browser);
    if (shown == nullptr || shown->navigate(to_qt(address))) return;
    MsgBox({.text = u"\"" + Trim(address) +
                    u"\" is not an address. Type one like http://www.example.com/page.htm, or the path of a "
                    u"file."});
}

void QtDesktop::show_html(WebBrowser& browser, const Text& html) {
    if (BrowserView* const shown = view(browser)) shown->show_html(to_qt(html));
}

void QtDesktop::go_back(WebBrowser& browser) {
    if (BrowserView* const shown = view(browser)) shown->go_back();
}

void QtDesktop::go_forward(WebBrowser& browser) {
    if (BrowserView* const shown = view(browser)) shown->go_forward();
}

void QtDesktop::go_home(WebBrowser& browser) {
    if (BrowserView* const shown = view(browser)) shown->go_home();
}

bool QtDesktop::busy(WebBrowser& browser) {
    BrowserView* const shown = view(browser);
    return shown != nullptr && shown->busy();
}

Text QtDesktop::inner_text(WebBrowser& browser) {
    BrowserView* const shown = view(browser);
    return shown != nullptr ? from_qt(shown->inner_text()) : Text();
}

std::vector<Link> QtDesktop::links(WebBrowser& browser) {
    std::vector<Link> all;
    if (BrowserView* const shown = view(browser))
        for (const QString& address : shown->links()) all.push_back({from_qt(address)});
    return all;
}

Text QtDesktop::fetch(Inet& inet, const Text& address) {
    return transfer_.fetch(inet, address);
}

void QtDesktop::cancel(Inet& inet) {
    transfer_.cancel(inet);
}

} // namespace twk
