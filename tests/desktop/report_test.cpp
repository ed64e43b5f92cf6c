// SPDX-License-Identifier: MIT
// The overview of a report: what its table shows, and what leaves it.

#include "engine/keyword_table.h"
#include "reports/form12.h"
#include "user.h"

#include <QApplication>
#include <QClipboard>
#include <QFileDialog>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QTabWidget>
#include <QTableView>
#include <QTest>
#include <QToolButton>

namespace twk {
namespace {

class Overview : public test::WindowTest {
  protected:
    /// A run of three pages has ended.
    void end_a_run() {
        screens().dispatch([this] {
            screens().show<Form12>();
            Form12& form = screen<Form12>();
            KeywordTable table;
            table.resize(2);
            table.cell(0) = u"soil";
            form.reporte2(0);
            form.Reporte(table, 1);
            const Text folder = app.path(u"Projects/shed/h");
            std::int16_t index = 0;
            for (const TextView name : {u"b.htm", u"a.htm", u"c.htm"}) {
                const Text html = u"<title>soil " + Text(3 - static_cast<std::size_t>(index), u'x') +
                                  u"</title>" + Text(static_cast<std::size_t>(index * index), u'-') +
                                  u" <a href=a.htm>soil</a>";
                app.write(u"Projects/shed/h/" + Text(name), to_utf8(html));
                form.reporte2_2(folder + u"/" + Text(name), html, index, index == 2 ? 3 : 1, u"", u"NO", u"");
                ++index;
            }
            form.ended({.project = u"shed", .project_folder = app.path(u"Projects/shed")});
            form.Command2.enabled = true;
        });
        user.find<QTabWidget>("Form12", "tabs_report")->setCurrentIndex(1);
    }
    QStringList files() const {
        const QAbstractItemModel& rows = *table()->model();
        QStringList names;
        for (int row = 0; row < rows.rowCount(); ++row) names += rows.index(row, 2).data().toString();
        return names;
    }
    QTableView* table() const { return user.find<QTableView>("Form12", "overview_pages"); }
};

TEST_F(Overview, SortsFiltersCopiesAndSaves) {
    end_a_run();
    EXPECT_EQ(files().join(u' '), QStringLiteral("b.htm a.htm c.htm"));
    table()->sortByColumn(2, Qt::AscendingOrder);
    EXPECT_EQ(files().join(u' '), QStringLiteral("a.htm b.htm c.htm"));
    table()->sortByColumn(4, Qt::DescendingOrder); // numbers
    EXPECT_EQ(files().front(), QStringLiteral("c.htm"));

    QTest::keyClicks(user.find<QLineEdit>("Form12", "overview_filter"), QStringLiteral("SOIL XX"));
    EXPECT_EQ(files().size(), 2);
    table()->hideColumn(1);
    table()->setFocus();
    table()->selectRow(0);
    QTest::keyClick(table(), Qt::Key_C, Qt::ControlModifier);
    const QStringList cells = QApplication::clipboard()->text().split(u'\t');
    ASSERT_EQ(cells.size(), table()->model()->columnCount() - 1);
    EXPECT_EQ(cells[1], files().front());

    user.on_dialog([this] {
        auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))
            ->setText(QString::fromStdString((app.folder() / "mine.csv").string()));
        static_cast<QDialog*>(dialog)->accept();
    });
    user.find<QToolButton>("Form12", "overview_save")->menu()->actions()[1]->trigger();
    EXPECT_NE(app.read(u"mine.csv").find("First-level,h,b.htm,"), std::string::npos);

    screens().dispatch([] { screen<Form12>().begin_run(); });
    EXPECT_EQ(files().size(), 0) << "a run that writes has no report yet";
}

} // namespace
} // namespace twk
