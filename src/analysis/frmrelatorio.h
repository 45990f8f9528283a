#pragma once

#include "reports/exportcommands.h"

#include <QDialog>

#include <memory>
#include <vector>

class ListView;

namespace Ui {
class frmRelatorio;
}

/// What one use of the report screen has of its own.
struct ReportScreen
{
    QString name; ///< object name
    ExportTexts exports;
    modimpressao::PageSetup pages;
};

namespace reportscreen {

ReportScreen general();
/// `frmMovimento`: the movements of one entry.
ReportScreen movement();

} // namespace reportscreen

/// The general report screen: title, filter, lists and totals, to be read, saved and printed. The user may
/// sort the lists and arrange their columns; they are saved and printed as they are shown.
class frmRelatorio : public QDialog
{
    Q_OBJECT

public:
    ~frmRelatorio() override;

    /// Keeps the tables of `report` that hold their own rows, and copies others, whose sources may go away.
    static frmRelatorio *open(Report report, QWidget *parent, ReportScreen screen = reportscreen::general());

private:
    frmRelatorio(Report report, ReportScreen screen, QWidget *parent);
    void addList(const std::shared_ptr<const TableSource> &table, const QString &title);
    void showTexts();
    /// The report with the lists as they are shown.
    Report shown() const;

    std::unique_ptr<Ui::frmRelatorio> m_ui;
    Report m_report; ///< without its tables
    ReportScreen m_screen;
    std::vector<ListView *> m_lists;
};
