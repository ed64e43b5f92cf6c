// SPDX-License-Identifier: MIT
#include "desktop/report_model.h"

#include "desktop/qt_text.h"
#include "reports/page_story.h"

#include <algorithm>
#include <numeric>

namespace twk {

namespace {

QString figure(double value, int decimals) {
    return value < 0 ? QString() : QString::number(value, 'f', decimals);
}

const std::vector<QString>& headings() {
    static const std::vector<QString> names = {
        QStringLiteral("Kind"),      QStringLiteral("Folder"),  QStringLiteral("File"),
        QStringLiteral("Words"),     QStringLiteral("KB"),      QStringLiteral("Links out"),
        QStringLiteral("Links in"),  QStringLiteral("Title"),   QStringLiteral("Title words"),
        QStringLiteral("Redirects"), QStringLiteral("Keyword"), QStringLiteral("Density"),
        QStringLiteral("Made of"),   QStringLiteral("Findings")};
    return names;
}

} // namespace

void ReportModel::show(std::shared_ptr<const SiteReport> report, std::vector<int> findings) {
    beginResetModel();
    report_ = std::move(report);
    findings_ = std::move(findings);
    searched_.clear();
    ranked_ = -1;
    endResetModel();
}

int ReportModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() || !report_ ? 0 : static_cast<int>(report_->pages.size());
}

int ReportModel::columnCount(const QModelIndex& parent) const {
    if (parent.isValid()) return 0;
    return first_density + (report_ ? static_cast<int>(report_->keywords.size()) : 0);
}

bool ReportModel::is_number(int column) const {
    return column >= first_density || column == words || column == kb || column == links_out ||
           column == links_in || column == title_words || column == own_density || column == findings;
}

double ReportModel::number(std::size_t row, int column) const {
    const PageRow& page = report_->pages[row];
    switch (column) {
    case words: return page.words;
    case kb: return page.kb;
    case links_out: return page.links_out;
    case links_in: return page.links_in;
    case title_words: return page.title_words;
    case own_density: return page.own_density;
    case findings: return findings_[row];
    default:
        return static_cast<double>(report_->density(row, static_cast<std::size_t>(column - first_density)));
    }
}

QString ReportModel::cell(std::size_t row, int column) const {
    const PageRow& page = report_->pages[row];
    switch (column) {
    case kind: return to_qt(kind_name(page));
    case folder: return to_qt(folder_name(*report_, page));
    case file: return to_qt(page.file);
    case page_title: return to_qt(page.title);
    case redirects: return to_qt(redirects_word(page));
    case own: return to_qt(own_keyword(*report_, page));
    case made: return to_qt(short_story(page));
    case kb: return figure(page.kb, 1);
    default: return figure(number(row, column), column == own_density || column >= first_density ? 2 : 0);
    }
}

QVariant ReportModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    const auto row = static_cast<std::size_t>(index.row());
    if (role == Qt::DisplayRole) return cell(row, index.column());
    if (role == Qt::TextAlignmentRole && is_number(index.column()))
        return static_cast<int>(Qt::AlignRight | Qt::AlignVCenter);
    if (role == Qt::ToolTipRole) {
        QString all;
        for (const Text& line : page_story(*report_, report_->pages[row]))
            all += (all.isEmpty() ? QString() : QStringLiteral("\n")) + to_qt(line);
        return QStringLiteral("<p>") + all.toHtmlEscaped().replace(QLatin1Char('\n'), QStringLiteral("<br>"));
    }
    return {};
}

QVariant ReportModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (role != Qt::DisplayRole) return {};
    if (orientation == Qt::Vertical) return section + 1;
    if (section < first_density) return headings()[static_cast<std::size_t>(section)];
    return QStringLiteral("% %1").arg(
        to_qt(report_->keywords[static_cast<std::size_t>(section - first_density)]));
}

const std::vector<int>& ReportModel::ranks(int column) const {
    if (ranked_ == column) return ranks_;
    ranked_ = column;
    const std::size_t rows = report_->pages.size();
    ranks_.assign(rows, 0);
    std::vector<std::size_t> order(rows);
    std::iota(order.begin(), order.end(), std::size_t{0});
    const auto rank = [&](const auto& keys) {
        std::sort(order.begin(), order.end(),
                  [&](std::size_t a, std::size_t b) { return keys[a] < keys[b]; });
        for (std::size_t i = 1; i < rows; ++i)
            ranks_[order[i]] = ranks_[order[i - 1]] + (keys[order[i - 1]] < keys[order[i]] ? 1 : 0);
    };
    if (is_number(column)) {
        std::vector<double> keys;
        for (std::size_t row = 0; row < rows; ++row) keys.push_back(number(row, column));
        rank(keys);
    } else {
        std::vector<QString> keys;
        for (std::size_t row = 0; row < rows; ++row) keys.push_back(cell(row, column).toLower());
        rank(keys);
    }
    return ranks_;
}

const QString& ReportModel::searched(std::size_t row) const {
    if (searched_.empty())
        for (std::size_t r = 0; r < report_->pages.size(); ++r) {
            QString all;
            for (const int column : {kind, folder, file, page_title, own, made})
                all += cell(r, column) + QLatin1Char('\n');
            searched_.push_back(all.toLower());
        }
    return searched_[row];
}

void ReportOrder::look_for(const QString& text) {
    text_ = text.toLower();
    invalidateFilter();
}

void ReportOrder::show_kind(int kind) {
    kind_ = kind;
    invalidateFilter();
}

void ReportOrder::show_rows(const std::vector<std::size_t>* rows) {
    some_ = rows != nullptr;
    rows_.assign(some_ ? static_cast<std::size_t>(model().rowCount()) : 0, false);
    if (some_)
        for (const std::size_t row : *rows) rows_[row] = true;
    invalidateFilter();
}

std::size_t ReportOrder::row_of(const QModelIndex& index) const {
    return static_cast<std::size_t>(mapToSource(index).row());
}

bool ReportOrder::filterAcceptsRow(int row, const QModelIndex&) const {
    const auto r = static_cast<std::size_t>(row);
    if (some_ && !(r < rows_.size() && rows_[r])) return false;
    if (kind_ != 0 && model().report()->pages[r].kind != kind_) return false;
    return text_.isEmpty() || model().searched(r).contains(text_);
}

bool ReportOrder::lessThan(const QModelIndex& left, const QModelIndex& right) const {
    const std::vector<int>& ranks = model().ranks(left.column());
    return ranks[static_cast<std::size_t>(left.row())] < ranks[static_cast<std::size_t>(right.row())];
}

} // namespace twk
