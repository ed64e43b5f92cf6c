// SPDX-License-Identifier: MIT
#include "desktop/report_overview.h"

#include "desktop/binder.h"
#include "desktop/chart_view.h"
#include "desktop/qt_text.h"
#include "desktop/report_model.h"
#include "platform/desktop.h"
#include "platform/numbers.h"
#include "reports/form12.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QSplitter>
#include <QTableView>
#include <QTableWidget>
#include <QToolButton>
#include <QVBoxLayout>

namespace twk {

namespace {

constexpr int shown_at_first = 24; ///< density columns, past which they start hidden

QWidget* titled(const QString& title, std::initializer_list<QWidget*> widgets) {
    auto* const box = new QWidget;
    auto* const column = new QVBoxLayout(box);
    column->setContentsMargins(0, 0, 0, 0);
    auto* const label = new QLabel(title);
    label->setBuddy(*widgets.begin());
    label->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    column->addWidget(label);
    for (QWidget* const each : widgets) column->addWidget(each);
    return box;
}

} // namespace

ReportOverview::ReportOverview(ScreenBinding& binding, QWidget& ended)
    : binding_(binding), ended_(ended), model_(new ReportModel(this)), order_(new ReportOrder(this)),
      counts_(new QLabel), findings_(new QListWidget), why_(new QLabel), chart_(new ChartView),
      charts_(new QComboBox), destinations_(new QTableWidget(0, 5)), filter_(new QLineEdit),
      kinds_(new QComboBox), columns_(new QToolButton), save_(new QToolButton), table_(new QTableView) {
    auto* const column = new QVBoxLayout(this);
    counts_->setObjectName(QStringLiteral("overview_counts"));
    counts_->setWordWrap(true);
    column->addWidget(counts_);
    auto* const parts = new QSplitter(Qt::Vertical);
    parts->setObjectName(QStringLiteral("overview_parts"));
    auto* const lower = new QWidget;
    auto* const below = new QVBoxLayout(lower);
    below->setContentsMargins(0, 0, 0, 0);
    build_table(*below);
    parts->addWidget(build_head());
    parts->addWidget(lower);
    parts->setStretchFactor(0, 2);
    parts->setStretchFactor(1, 3);
    parts->setChildrenCollapsible(false);
    column->addWidget(parts, 1);
    ended_.installEventFilter(this);
    reload();
}

QWidget* ReportOverview::build_head() {
    findings_->setObjectName(QStringLiteral("overview_findings"));
    findings_->setWordWrap(true);
    why_->setWordWrap(true);
    why_->setTextFormat(Qt::PlainText);
    connect(findings_, &QListWidget::currentRowChanged, this, [this] { filter_by_finding(); });
    connect(charts_, &QComboBox::currentIndexChanged, this, [this] { show_chart(); });
    charts_->setAccessibleName(QStringLiteral("Which chart"));
    destinations_->setHorizontalHeaderLabels({QStringLiteral("Folder"), QString(), QStringLiteral("Goes to"),
                                              QStringLiteral("Pages"), QStringLiteral("Bytes")});
    destinations_->verticalHeader()->hide();
    destinations_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    destinations_->setSelectionBehavior(QAbstractItemView::SelectRows);
    auto* const head = new QSplitter;
    head->setObjectName(QStringLiteral("overview_head"));
    head->addWidget(titled(QStringLiteral("&Findings (a click shows their pages)"), {findings_, why_}));
    head->addWidget(titled(QStringLiteral("C&harts"), {charts_, chart_}));
    head->addWidget(titled(QStringLiteral("Where to &upload"), {destinations_}));
    head->setChildrenCollapsible(false);
    return head;
}

void ReportOverview::build_table(QVBoxLayout& column) {
    filter_->setObjectName(QStringLiteral("overview_filter"));
    filter_->setPlaceholderText(QStringLiteral("Filter the pages"));
    filter_->setAccessibleName(QStringLiteral("Filter the pages"));
    filter_->setClearButtonEnabled(true);
    connect(filter_, &QLineEdit::textChanged, order_, &ReportOrder::look_for);
    kinds_->setAccessibleName(QStringLiteral("Kind of pages"));
    kinds_->addItem(QStringLiteral("All kinds"), 0);
    for (const int kind : {1, 2, 3}) kinds_->addItem(to_qt(kind_name(kind)), kind);
    connect(kinds_, &QComboBox::currentIndexChanged, this,
            [this] { order_->show_kind(kinds_->currentData().toInt()); });
    columns_->setText(QStringLiteral("Columns"));
    save_->setText(QStringLiteral("Save as"));
    save_->setObjectName(QStringLiteral("overview_save"));
    auto* const formats = new QMenu(save_);
    const auto add = [&](const QString& name, ReportFormat format) {
        formats->addAction(name, this, [this, format] { save(format); });
    };
    add(QStringLiteral("Web page (HTML)..."), ReportFormat::html);
    add(QStringLiteral("Table (CSV)..."), ReportFormat::csv);
    add(QStringLiteral("All figures (JSON)..."), ReportFormat::json);
    save_->setMenu(formats);
    columns_->setMenu(new QMenu(columns_));
    for (QToolButton* const button : {columns_, save_}) button->setPopupMode(QToolButton::InstantPopup);
    auto* const row = new QHBoxLayout;
    row->addWidget(filter_, 1);
    for (QWidget* const each :
         {static_cast<QWidget*>(kinds_), static_cast<QWidget*>(columns_), static_cast<QWidget*>(save_)})
        row->addWidget(each);
    column.addLayout(row);

    order_->setSourceModel(model_);
    table_->setObjectName(QStringLiteral("overview_pages"));
    table_->setAccessibleName(QStringLiteral("Pages"));
    table_->setModel(order_);
    table_->setSelectionBehavior(QAbstractItemView::SelectRows);
    table_->setWordWrap(false);
    table_->setAlternatingRowColors(true);
    table_->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed); // asks no row for its height
    table_->verticalHeader()->setDefaultSectionSize(table_->fontMetrics().height() + 8);
    table_->horizontalHeader()->setSectionsMovable(true);
    table_->setSortingEnabled(true);
    table_->horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
    table_->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(table_, &QWidget::customContextMenuRequested, this,
            [this](const QPoint& at) { offer_actions(at); });
    connect(table_, &QTableView::doubleClicked, this, [this] {
        if (const PageRow* const page = current()) open(page->path);
    });
    table_->installEventFilter(this);
    column.addWidget(table_, 1);
}

bool ReportOverview::eventFilter(QObject* watched, QEvent* event) {
    if (watched == &ended_ && event->type() == QEvent::EnabledChange) reload();
    if (watched == table_ && event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent*>(event)->matches(QKeySequence::Copy)) { // the view itself copies one cell
        QApplication::clipboard()->setText(chosen_as_text());
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void ReportOverview::reload() {
    std::shared_ptr<const SiteReport> report;
    if (ended_.isEnabled())
        binding_.run([&] {
            if (screens().is_loaded<Form12>()) report = twk::screen<Form12>().overview();
        });
    report_ = report;
    found_ = report_ ? find_findings(*report_) : std::vector<Finding>();
    std::vector<int> of_rows;
    for (const auto& found : findings_of_pages(found_, report_ ? report_->pages.size() : 0))
        of_rows.push_back(static_cast<int>(found.size()));
    filter_->clear();
    order_->show_rows(nullptr);
    model_->show(report_, std::move(of_rows));
    setEnabled(report_ != nullptr);
    show_counts();
    show_findings();
    show_destinations();
    list_charts();
    list_columns();
}

void ReportOverview::show_counts() {
    if (!report_) {
        counts_->setText(QStringLiteral("The overview comes with the end of a run."));
        return;
    }
    const auto kinds = pages_of_kinds(*report_);
    QStringList parts;
    for (const int kind : {1, 2, 3})
        parts += QStringLiteral("%1 %2")
                     .arg(kinds[static_cast<std::size_t>(kind)])
                     .arg(to_qt(LCase(kind_name(kind))));
    counts_->setText(QStringLiteral("<b>%1 pages</b>: %2. %L3 bytes to upload. %4 findings.")
                         .arg(report_->pages.size())
                         .arg(parts.join(QStringLiteral(", ")))
                         .arg(report_->bytes)
                         .arg(found_.size()));
}

void ReportOverview::show_findings() {
    const QSignalBlocker quiet(findings_);
    findings_->clear();
    findings_->addItem(QStringLiteral("All pages"));
    for (const Finding& each : found_) {
        findings_->addItem(QStringLiteral("%1: %2 (%3)")
                               .arg(to_qt(weight_name(each.weight)), to_qt(each.name))
                               .arg(each.cases()));
        findings_->item(findings_->count() - 1)->setToolTip(to_qt(each.why));
    }
    why_->clear();
}

void ReportOverview::filter_by_finding() {
    const int at = findings_->currentRow() - 1;
    if (at < 0) {
        why_->clear();
        order_->show_rows(nullptr);
        return;
    }
    const Finding& finding = found_[static_cast<std::size_t>(at)];
    QString told = to_qt(finding.why + u" " + finding.remedy);
    for (std::size_t i = 0; i < std::min<std::size_t>(finding.items.size(), 5); ++i)
        told += QStringLiteral("\n- ") + to_qt(finding.items[i]);
    why_->setText(told);
    // One that speaks of no page leaves the table as it is.
    order_->show_rows(finding.pages.empty() ? nullptr : &finding.pages);
}

void ReportOverview::show_destinations() {
    destinations_->setRowCount(0);
    if (!report_) return;
    for (const Destination& each : report_->destinations) {
        const int row = destinations_->rowCount();
        destinations_->insertRow(row);
        const QString cells[] = {to_qt(each.folder),
                                 {},
                                 to_qt(each.server),
                                 QString::number(each.pages),
                                 QLocale().toString(static_cast<qlonglong>(each.bytes))};
        for (int c = 0; c < 5; ++c) destinations_->setItem(row, c, new QTableWidgetItem(cells[c]));
        auto* const button = new QPushButton(QStringLiteral("Open folder"));
        const Text path = joined_path(report_->facts.project_folder, each.folder);
        connect(button, &QPushButton::clicked, this, [this, path] { open(path); });
        destinations_->setCellWidget(row, 1, button);
    }
    destinations_->resizeColumnsToContents();
}

void ReportOverview::list_charts() {
    const QSignalBlocker quiet(charts_);
    charts_->clear();
    if (report_) {
        charts_->addItem(QStringLiteral("Words of the body"));
        charts_->addItem(QStringLiteral("Size in KB"));
        charts_->addItem(QStringLiteral("Links between kinds"));
        for (const Text& keyword : report_->keywords)
            charts_->addItem(QStringLiteral("Density of \"%1\"").arg(to_qt(keyword)));
        charts_->setCurrentIndex(0);
    }
    show_chart();
}

void ReportOverview::show_chart() {
    const int at = charts_->currentIndex();
    if (!report_ || at < 0)
        chart_->clear();
    else if (at == 0)
        chart_->show(words_chart(*report_));
    else if (at == 1)
        chart_->show(size_chart(*report_));
    else if (at == 2)
        chart_->show(links_chart(*report_));
    else
        chart_->show(density_chart(*report_, static_cast<std::size_t>(at - 3)));
}

void ReportOverview::list_columns() {
    QMenu& menu = *columns_->menu();
    menu.clear();
    for (int c = 0; c < model_->columnCount(); ++c) {
        QAction* const shown =
            menu.addAction(model_->headerData(c, Qt::Horizontal, Qt::DisplayRole).toString());
        shown->setCheckable(true);
        shown->setChecked(c < ReportModel::first_density + shown_at_first);
        table_->setColumnHidden(c, !shown->isChecked());
        connect(shown, &QAction::toggled, this, [this, c](bool on) { table_->setColumnHidden(c, !on); });
    }
    const int letter = table_->fontMetrics().averageCharWidth();
    for (const auto& [c, letters] : {std::pair(ReportModel::folder, 26),
                                     {ReportModel::file, 34},
                                     {ReportModel::page_title, 34},
                                     {ReportModel::made, 34}})
        table_->setColumnWidth(c, letter * letters);
}

const PageRow* ReportOverview::current() const {
    const QModelIndex index = table_->currentIndex();
    return index.isValid() && report_ ? &report_->pages[order_->row_of(index)] : nullptr;
}

void ReportOverview::open(const Text& path) {
    binding_.run([&] { desktop().start(path); });
}

void ReportOverview::save(ReportFormat format) {
    binding_.run([&] {
        if (screens().is_loaded<Form12>()) twk::screen<Form12>().save_report(format);
    });
}

void ReportOverview::offer_actions(const QPoint& at) {
    const PageRow* const page = current();
    if (page == nullptr) return;
    const Text path = page->path;
    const QString address = to_qt(page->address);
    auto* const menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction(QStringLiteral("Open"), this, [this, path] { open(path); });
    menu->addAction(QStringLiteral("Show in folder"), this, [this, path] { open(Text(folder_of(path))); });
    menu->addSeparator();
    const auto copied = [](const QString& text) {
        return [text] { QApplication::clipboard()->setText(text); };
    };
    menu->addAction(QStringLiteral("Copy"), this,
                    [this] { QApplication::clipboard()->setText(chosen_as_text()); });
    menu->addAction(QStringLiteral("Copy path"), this, copied(to_qt(path)));
    menu->addAction(QStringLiteral("Copy URL"), this, copied(address));
    menu->popup(table_->viewport()->mapToGlobal(at));
}

QString ReportOverview::chosen_as_text() const {
    QModelIndexList rows = table_->selectionModel()->selectedRows();
    std::sort(rows.begin(), rows.end(), [](const auto& a, const auto& b) { return a.row() < b.row(); });
    QString text;
    for (const QModelIndex& row : rows) {
        QStringList cells;
        for (int at = 0; at < model_->columnCount(); ++at) {
            const int c = table_->horizontalHeader()->logicalIndex(at);
            if (!table_->isColumnHidden(c)) // what parts cells and lines stands in no cell
                cells += model_->cell(order_->row_of(row), c).simplified();
        }
        text += cells.join(QLatin1Char('\t')) + QLatin1Char('\n');
    }
    return text;
}

void add_report_overview(QWidget& form, ScreenBinding& binding) {
    auto* const tab = form.findChild<QWidget*>(QStringLiteral("tab_overview"));
    auto* const ended = form.findChild<QWidget*>(QStringLiteral("Command2"));
    auto* const column = new QVBoxLayout(tab);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(new ReportOverview(binding, *ended));
}

} // namespace twk
