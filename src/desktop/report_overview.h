// SPDX-License-Identifier: MIT
#pragma once

#include "reports/findings.h"
#include "reports/report_file.h"

#include <QWidget>
#include <memory>

class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QTableView;
class QTableWidget;
class QToolButton;
class QVBoxLayout;

namespace twk {

class ChartView;
class ReportModel;
class ReportOrder;
class ScreenBinding;

/// The overview of a report: counts, findings, charts, where to upload, and the table of pages. Fills itself
/// whenever a run has ended.
class ReportOverview : public QWidget {
    Q_OBJECT
  public:
    /// `ended` is the widget of the report that is enabled when no run writes.
    ReportOverview(ScreenBinding& binding, QWidget& ended);
    /// No more room than the least is asked for because a line of words may need two.
    bool hasHeightForWidth() const override { return false; }

    /// The rows that are chosen, and their visible columns, as text with tabs.
    QString chosen_as_text() const;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void build_table(QVBoxLayout& column);
    QWidget* build_head();
    void reload();
    void show_counts();
    void show_findings();
    void show_destinations();
    void list_charts();
    void list_columns();
    void show_chart();
    void filter_by_finding();
    void offer_actions(const QPoint& at);
    void open(const Text& path);
    void save(ReportFormat format);
    const PageRow* current() const;

    ScreenBinding& binding_;
    QWidget& ended_;
    std::shared_ptr<const SiteReport> report_;
    std::vector<Finding> found_;
    ReportModel* model_;
    ReportOrder* order_;
    QLabel* counts_;
    QListWidget* findings_;
    QLabel* why_;
    ChartView* chart_;
    QComboBox* charts_;
    QTableWidget* destinations_;
    QLineEdit* filter_;
    QComboBox* kinds_;
    QToolButton* columns_;
    QToolButton* save_;
    QTableView* table_;
};

/// Puts the overview behind the second tab of Form12's form.
void add_report_overview(QWidget& form, ScreenBinding& binding);

} // namespace twk
