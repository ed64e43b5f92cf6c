// SPDX-License-Identifier: MIT
#include "desktop/start_page.h"

#include "desktop/looks.h"
#include "desktop/qt_text.h"
#include "platform/faults.h"
#include "shell/project_list.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace twk {

namespace {

constexpr int widest = 860; ///< longer lines are hard to read

const char* const about =
    "Describe a target site, give its keywords and a few boxes of text, and say where the pages will stand.\n"
    "Six steps lead through it. The last but one writes a tree of pages, each made for a keyword or two.\n"
    "Nothing is uploaded: every destination gets a folder of its own, and a report tells what it holds.";

QTreeWidgetItem* line_of(const ProjectLine& project) {
    auto* const item = new QTreeWidgetItem({to_qt(project.name), QString::number(project.keywords),
                                            QString::number(project.boxes), to_qt(project.last_run)});
    item->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
    item->setTextAlignment(2, Qt::AlignRight | Qt::AlignVCenter);
    return item;
}

} // namespace

StartPage::StartPage()
    : projects_(new QTreeWidget), trouble_(new QLabel), open_(new QPushButton(tr("Open"))),
      new_(new QPushButton(tr("New Project"))), sample_(new QPushButton(tr("Open the sample"))) {
    setObjectName(QStringLiteral("start_page"));
    auto* const middle = new QWidget;
    middle->setMaximumWidth(widest);
    auto* const column = new QVBoxLayout(middle);
    column->setSpacing(12);
    auto* const title = new QLabel(tr("Projects"));
    title->setFont(sized(title->font(), Letters::title));
    column->addWidget(title);
    auto* const words = new QLabel(tr(about));
    words->setWordWrap(true);
    column->addWidget(words);
    column->addWidget(projects_, 1);
    trouble_->setWordWrap(true);
    trouble_->hide();
    column->addWidget(trouble_);
    auto* const buttons = new QHBoxLayout;
    buttons->addWidget(new_);
    buttons->addWidget(sample_);
    buttons->addStretch(1);
    buttons->addWidget(open_);
    column->addLayout(buttons);
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(12, 12, 12, 12);
    row->addStretch(1);
    row->addWidget(middle, 100);
    row->addStretch(1);

    projects_->setObjectName(QStringLiteral("start_projects"));
    projects_->setAccessibleName(tr("Projects"));
    projects_->setHeaderLabels({tr("Project"), tr("Keywords"), tr("Boxes"), tr("Last run")});
    projects_->setRootIsDecorated(false);
    projects_->setUniformRowHeights(true);
    projects_->setAllColumnsShowFocus(true);
    projects_->setAlternatingRowColors(true);
    projects_->header()->setStretchLastSection(false);
    projects_->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    projects_->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    for (const int figures : {1, 2})
        projects_->headerItem()->setTextAlignment(figures, Qt::AlignRight | Qt::AlignVCenter);
    open_->setObjectName(QStringLiteral("start_open"));
    new_->setObjectName(QStringLiteral("start_new"));
    sample_->setObjectName(QStringLiteral("start_sample"));
    open_->setToolTip(tr("Enter or a double click opens the project, too"));

    connect(projects_, &QTreeWidget::itemActivated, this, [this] { open_selected(); });
    connect(projects_, &QTreeWidget::currentItemChanged, this,
            [this](const QTreeWidgetItem* current) { open_->setEnabled(current != nullptr); });
    connect(open_, &QPushButton::clicked, this, [this] { open_selected(); });
    connect(new_, &QPushButton::clicked, this, &StartPage::new_project_wanted);
    connect(sample_, &QPushButton::clicked, this,
            [this] { Q_EMIT project_wanted(to_qt(Text(sample_project))); });
    setFocusProxy(projects_);
}

void StartPage::open_selected() {
    if (const QTreeWidgetItem* const item = projects_->currentItem()) Q_EMIT project_wanted(item->text(0));
}

void StartPage::list_projects(const QString& last) {
    projects_->clear();
    sample_->hide();
    trouble_->hide();
    try {
        for (const ProjectLine& project : project_lines()) {
            QTreeWidgetItem* const item = line_of(project);
            projects_->addTopLevelItem(item);
            if (projects_->currentItem() == nullptr || item->text(0) == last) projects_->setCurrentItem(item);
            if (project.name == sample_project) sample_->show();
        }
    } catch (const RuntimeFault& fault) {
        trouble_->setText(tr("The projects cannot be listed: %1").arg(to_qt(fault.text())));
        trouble_->show();
    }
    open_->setEnabled(projects_->currentItem() != nullptr);
}

} // namespace twk
