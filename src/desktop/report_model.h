// SPDX-License-Identifier: MIT
#pragma once

#include "reports/page_table.h"

#include <QAbstractTableModel>
#include <QSortFilterProxyModel>
#include <memory>
#include <set>
#include <vector>

namespace twk {

/// The page table of a report, a row a page; the densities of the keywords are its last columns.
class ReportModel : public QAbstractTableModel {
    Q_OBJECT
  public:
    enum Column {
        kind,
        folder,
        file,
        words,
        kb,
        links_out,
        links_in,
        page_title,
        title_words,
        redirects,
        own,
        own_density,
        made,
        findings,
        first_density
    };

    using QAbstractTableModel::QAbstractTableModel;

    /// Takes the report and what was found of each row.
    void show(std::shared_ptr<const SiteReport> report, std::vector<int> findings);
    const SiteReport* report() const { return report_.get(); }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    QString cell(std::size_t row, int column) const;
    /// Place of each row when the table is sorted by a column; equal cells have equal places.
    const std::vector<int>& ranks(int column) const;
    /// What a text is looked for in, in lower case.
    const QString& searched(std::size_t row) const;

  private:
    bool is_number(int column) const;
    double number(std::size_t row, int column) const;

    std::shared_ptr<const SiteReport> report_;
    std::vector<int> findings_;
    mutable std::vector<QString> searched_;
    mutable std::vector<int> ranks_;
    mutable int ranked_ = -1;
};

/// The same, sorted and filtered by a text, a kind and a set of rows. A sort of many thousand rows compares
/// whole numbers that the model has made ready.
class ReportOrder : public QSortFilterProxyModel {
    Q_OBJECT
  public:
    using QSortFilterProxyModel::QSortFilterProxyModel;

    void look_for(const QString& text);
    void show_kind(int kind);                             ///< 0: all
    void show_rows(const std::vector<std::size_t>* rows); ///< null: all

    std::size_t row_of(const QModelIndex& index) const;

  protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override;
    bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;

  private:
    const ReportModel& model() const { return *static_cast<const ReportModel*>(sourceModel()); }

    QString text_;
    int kind_ = 0;
    bool some_ = false;
    std::vector<bool> rows_;
};

} // namespace twk
