// SPDX-License-Identifier: MIT
// Shows every screen of the program on the sample project and keeps its picture:
//   grab_screens APPLICATION-FOLDER PICTURE-FOLDER WIDTH HEIGHT [dark]
#include "desktop/qt_desktop.h"
#include "desktop/qt_text.h"
#include "shell/mdi1.h"
#include "shell/project_list.h"
#include "support/every_screen.h"

#include <QApplication>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

using namespace twk;

namespace {

struct Shot {
    const char *screen, *state = "";
    std::function<void()> prepare = [] {};
    bool stays = false; ///< as later screens read it
};

void level(int number) {
    screen<Form6>().Slider1.value = number;
    screen<Form6>().Slider1_Change();
}

std::vector<Shot> shots() {
    std::vector<Shot> all = {
        {"Form1", "", [] { open_listed_project(Text(sample_project)); }},
        {"Form2", "", [] {}, true},
        {"Form3", "", [] { screen<Form3>().List1.select_from_user(0, {0}), screen<Form3>().List1_Click(); },
         true},
        {"Form3", "_move", [] { screen<Form3>().Frame1.visible = true; }, true},
        {"Form3", "_import",
         [] { screen<Form3>().Frame1.visible = false, screen<Form3>().Frame3.visible = true; }, true},
        {"Form5", "", [] { screen<Form5>().List1.list_index = 0, screen<Form5>().List1_Click(); }},
        {"Form7", "", [] {}, true},
        {"Form6", "_sitemap", [] { screen<Form6>().Frame8.visible = true; }},
        {"Form17", "",
         [] {
             for (int i = 0; i < 20; ++i)
                 screen<Form17>().List1.add_item(u"garden_tools_pruning_shears_js.htm");
         }},
        {"Form17", "_help", [] { screen<Form17>().Frame2.visible = true; }},
        {"Form17", "_replace", [] { screen<Form17>().Frame1.visible = true; }},
        {"Form20", "_options", [] { screen<Form20>().Frame4.visible = true; }},
        {"Form23", "_grid",
         [] {
             for (std::size_t i = 0; i < 4; ++i) screen<Form23>().Frame1[i].visible = i != Form23::all_files;
             screen<Form23>().gridReplace.resize(5, {u"PlaceHolder/Flag", u"Replace String"});
         }},
        {"Form9", "", [] { desktop().navigate(screen<Form9>().wb1, app_path() + u"/help.htm"); }}};
    for (const char* state : {"_1", "_2", "_3", "_4", "_5"})
        all.push_back({"Form6", state, [state] { level(state[1] - '0'); }});
    for (const char* name : {"Form4", "Form8", "Form10", "Form11", "Form12", "Form16", "Form19", "Form20",
                             "Form21", "Form23", "frmTip", "frmVersion", "disclaimer"})
        all.push_back({name});
    return all;
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 5) return 2;
    qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    QApplication app(argc, argv);
    const bool dark = argc > 5;
    if (dark) QApplication::setPalette(QPalette(QColor(0x35, 0x35, 0x35)));
    set_app_path(from_qt(QString::fromLocal8Bit(argv[1])));
    QtDesktop qt;
    set_desktop(&qt);
    screens().dispatch([] { screens().show<mdi1>(); });
    qt.window().resize(atoi(argv[3]), atoi(argv[4]));
    qt.window().show();
    QTimer messages;
    QObject::connect(&messages, &QTimer::timeout, [] {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) box->reject();
    });
    messages.start(200);
    for (const Shot& shot : shots()) {
        Screen& shown = test::screen_by_name(shot.screen);
        screens().dispatch([&] { screens().show(shown), shot.prepare(), screens().bring_forward(shown); });
        QTest::qWait(shown.map.find_control("wb1") != nullptr ? 3000 : 60); // a browser needs some time
        qt.window().grab().save(QString::fromLocal8Bit(argv[2]) + u'/' + QLatin1String(shot.screen) +
                                QLatin1String(shot.state) + QLatin1String(dark ? "_dark.png" : ".png"));
        if (!shot.stays) screens().dispatch([&] { screens().unload(shown); });
        QTest::qWait(20);
    }
    screens().dispatch([] { screens().unload_all(); });
    set_desktop(nullptr);
    return 0;
}
