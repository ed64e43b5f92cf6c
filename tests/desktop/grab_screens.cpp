// Shows every screen of the program on the sample project and keeps its picture:
//   grab_screens APPLICATION-FOLDER PICTURE-FOLDER WIDTH HEIGHT [dark]
#include "desktop/qt_desktop.h"
#include "desktop/qt_text.h"
#include "every_screen.h"
#include "platform/files.h"
#include "shell/mdi1.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QMessageBox>
#include <QPalette>
#include <QTest>
#include <QTimer>

namespace {

using namespace twk;

constexpr int browser_time = 3000;

class Camera {
  public:
    Camera(MainWindow& window, QString folder, QString suffix)
        : window_(window), folder_(std::move(folder)), suffix_(std::move(suffix)) {}

    void take(const QString& name, int milliseconds = 60) const {
        QTest::qWait(milliseconds);
        window_.grab().save(folder_ + u'/' + name + suffix_);
    }

    /// Shows one screen alone, prepares it and takes its picture; a browser needs some time.
    template <class S, class Prepare>
    void shoot(const QString& name, Prepare prepare, int milliseconds = 60) const {
        screens().dispatch([&] {
            if (!screens().is_loaded<S>()) screens().show<S>();
            screens().bring_forward<S>();
            prepare(screen<S>());
        });
        take(name, milliseconds);
        screens().dispatch([] {
            for (Screen* each : screens().open())
                if (each->name != "mdi1" && each->name != "Form2" && each->name != "Form3" &&
                    each->name != "Form7")
                    screens().unload(*each);
        });
        QTest::qWait(20);
    }
    template <class S> void shoot(const QString& name) const {
        shoot<S>(name, [](S&) {});
    }

  private:
    MainWindow& window_;
    QString folder_;
    QString suffix_;
};

void close_messages() {
    for (QWidget* each : QApplication::topLevelWidgets())
        if (auto* box = qobject_cast<QMessageBox*>(each)) {
            qWarning("%s", qPrintable(box->text()));
            box->reject();
        }
}

void shoot_wizard(const Camera& camera) {
    camera.shoot<Form1>("form1", [](Form1& form) { form.combo1.select(0); });
    screens().dispatch([] {
        screen<Form1>().combo1.select(0);
        screen<Form1>().Command3_Click();
    });
    camera.shoot<Form2>("form2");
    camera.shoot<Form3>("form3", [](Form3& form) {
        form.List1.select_from_user(0, {0});
        form.List1_Click();
        form.List1.list_index = 0;
    });
    camera.shoot<Form3>("form3_move", [](Form3& form) { form.Frame1.visible = true; });
    camera.shoot<Form3>("form3_import", [](Form3& form) {
        form.Frame1.visible = false;
        form.Frame3.visible = true;
    });
    screens().dispatch([] { screen<Form3>().Frame3.visible = false; });
    camera.shoot<Form5>("form5", [](Form5& form) {
        form.List1.list_index = 0;
        form.List1_Click();
    });
    camera.shoot<Form7>("form7");
    for (int level = 1; level <= 5; ++level)
        camera.shoot<Form6>(QStringLiteral("form6_%1").arg(level), [level](Form6& form) {
            form.Slider1.value = level;
            form.Slider1_Change();
        });
    camera.shoot<Form6>("form6_sitemap", [](Form6& form) { form.Frame8.visible = true; });
    camera.shoot<Form17>("form17", [](Form17& form) {
        for (int i = 0; i < 20; ++i) {
            form.List1.add_item(u"garden_tools_pruning_shears_js.htm");
            form.List2.add_item(u"http://www.example.com/garden");
        }
        form.Label46.caption =
            u"You will be creating 20 Random-Generated Pages. You can change their names here.";
    });
    camera.shoot<Form17>("form17_help", [](Form17& form) { form.Frame2.visible = true; });
    camera.shoot<Form17>("form17_replace", [](Form17& form) { form.Frame1.visible = true; });
    camera.shoot<Form12>(
        "form12",
        [](Form12& form) {
            const Text folder = app_path() + u"/Projects/garden-sample/pages.greenspade.example";
            if (!dir_exists(folder)) return;
            for (const Text& each : list_files(folder, u"*.htm")) {
                const bool second = Split(each, u"_").size() > 2;
                (second ? form.List2 : form.List1).add_item(each);
            }
            for (ListBox* each : {&form.List1, &form.List2, &form.List3}) each->enabled = true;
            form.RichTextBox1.enabled = true;
            form.Label2.caption =
                u"Action Complete. Select the pages in the diferent boxes to see the analysis.";
            form.ProgressBar1.set_value(100);
            form.List1.list_index = 0;
            desktop().navigate(form.wb1, folder + u"/" + form.List1.text());
        },
        browser_time);
}

void shoot_tools(const Camera& camera) {
    camera.shoot<Form8>("form8");
    camera.shoot<Form10>("form10");
    camera.shoot<Form11>("form11");
    camera.shoot<Form16>("form16", [](Form16& form) {
        form.Label1.caption = u"Log for the Spider Process";
        form.Text1.text = u"Starting Spider";
    });
    camera.shoot<Form19>("form19");
    camera.shoot<Form20>("form20");
    camera.shoot<Form20>("form20_options", [](Form20& form) { form.Frame4.visible = true; });
    camera.shoot<Form21>("form21");
    camera.shoot<Form23>("form23");
    camera.shoot<Form23>("form23_grid", [](Form23& form) {
        form.Frame1[Form23::all_files].visible = false;
        form.Frame1[Form23::placeholders].visible = true;
        form.Frame1[Form23::grid].visible = true;
        form.Frame1[Form23::results].visible = true;
        form.gridReplace.resize(5, {u"PlaceHolder/Flag", u"Replace String"});
    });
    camera.shoot<frmTip>("frmtip");
    camera.shoot<Form9>(
        "form9", [](Form9& form) { desktop().navigate(form.wb1, app_path() + u"/help.htm"); }, browser_time);
    camera.shoot<frmVersion>("frmversion");
    camera.shoot<disclaimer>("disclaimer");
    camera.shoot<Form4>("form4");
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
    QObject::connect(&messages, &QTimer::timeout, close_messages);
    messages.start(200);
    const Camera camera(qt.window(), QString::fromLocal8Bit(argv[2]), dark ? "_dark.png" : ".png");
    camera.take("mdi1");
    shoot_wizard(camera);
    shoot_tools(camera);
    screens().dispatch([] { screens().unload_all(); });
    set_desktop(nullptr);
    return 0;
}
