// SPDX-License-Identifier: MIT
// Shows every screen of the program on the sample project and keeps its picture:
//   grab_screens APPLICATION-FOLDER PICTURE-FOLDER WIDTH HEIGHT [dark]
#include "desktop/qt_desktop.h"
#include "desktop/qt_text.h"
#include "shell/mdi1.h"
#include "support/every_screen.h"

#include <QApplication>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

namespace {

using namespace twk;

class Camera {
  public:
    Camera(MainWindow& window, QString folder, QString suffix)
        : window_(window), folder_(std::move(folder)), suffix_(std::move(suffix)) {}

    /// Shows one screen alone, prepares it and takes its picture; a browser needs some time.
    template <class S>
    void shoot(const std::string& state = {}, const std::function<void(S&)>& prepare = {}) const {
        screens().dispatch([&] {
            if (!screens().is_loaded<S>()) screens().show<S>();
            screens().bring_forward<S>();
            if (prepare) prepare(screen<S>());
        });
        constexpr bool browses = requires(S & form) {
            form.wb1;
        };
        QTest::qWait(browses ? 3000 : 60);
        window_.grab().save(folder_ + u'/' + QString::fromStdString(S::name + state) + suffix_);
        if constexpr (std::is_same_v<S, Form2> || std::is_same_v<S, Form3> || std::is_same_v<S, Form7>)
            return; // later screens read these
        screens().dispatch([] { screens().unload<S>(); });
        QTest::qWait(20);
    }

  private:
    MainWindow& window_;
    QString folder_;
    QString suffix_;
};

void shoot_wizard(const Camera& camera) {
    screens().dispatch([] {
        screens().show<Form1>();
        screen<Form1>().combo1.select(0);
        screen<Form1>().Command3_Click();
    });
    camera.shoot<Form1>();
    camera.shoot<Form2>();
    camera.shoot<Form3>("", [](Form3& form) {
        form.List1.select_from_user(0, {0});
        form.List1_Click();
        form.List1.list_index = 0;
    });
    camera.shoot<Form3>("_move", [](Form3& form) { form.Frame1.visible = true; });
    camera.shoot<Form3>("_import", [](Form3& form) {
        form.Frame1.visible = false;
        form.Frame3.visible = true;
    });
    camera.shoot<Form5>("", [](Form5& form) {
        form.List1.list_index = 0;
        form.List1_Click();
    });
    camera.shoot<Form7>();
    for (int level = 1; level <= 5; ++level)
        camera.shoot<Form6>("_" + std::to_string(level), [level](Form6& form) {
            form.Slider1.value = level;
            form.Slider1_Change();
        });
    camera.shoot<Form6>("_sitemap", [](Form6& form) { form.Frame8.visible = true; });
    camera.shoot<Form17>("", [](Form17& form) {
        for (int i = 0; i < 20; ++i) form.List1.add_item(u"garden_tools_pruning_shears_js.htm");
    });
    camera.shoot<Form17>("_help", [](Form17& form) { form.Frame2.visible = true; });
    camera.shoot<Form17>("_replace", [](Form17& form) { form.Frame1.visible = true; });
}

template <class... S> void shoot_each(const Camera& camera) {
    (camera.shoot<S>(), ...);
}

void shoot_tools(const Camera& camera) {
    shoot_each<Form4, Form8, Form10, Form11, Form12, Form16, Form19, Form20, Form21, Form23, frmTip,
               frmVersion, disclaimer>(camera);
    camera.shoot<Form20>("_options", [](Form20& form) { form.Frame4.visible = true; });
    camera.shoot<Form23>("_grid", [](Form23& form) {
        form.Frame1[Form23::all_files].visible = false;
        for (const auto each : {Form23::placeholders, Form23::grid, Form23::results})
            form.Frame1[each].visible = true;
        form.gridReplace.resize(5, {u"PlaceHolder/Flag", u"Replace String"});
    });
    camera.shoot<Form9>("", [](Form9& form) { desktop().navigate(form.wb1, app_path() + u"/help.htm"); });
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
    const Camera camera(qt.window(), QString::fromLocal8Bit(argv[2]), dark ? "_dark.png" : ".png");
    shoot_wizard(camera);
    shoot_tools(camera);
    screens().dispatch([] { screens().unload_all(); });
    set_desktop(nullptr);
    return 0;
}
