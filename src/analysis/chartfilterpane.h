#pragma once

#include "analysis/chartquery.h"

#include <QWidget>

#include <memory>

namespace Ui {
class ChartFilterPane;
}

/// Everything in which the pages of the chart options differ.
struct ChartPageKind
{
    const FigureKind *kind; ///< null for payables against receivables
    QString title;          ///< of the tab
    QString suffix;         ///< of object names
    QString command;        ///< object name: "cmdnatelap"
    QString contactLabel;   ///< "&Fornecedor:"; of sides
    QString centreLabel;
};

/// What every page offers to choose from.
struct ChartNames
{
    QStringList accounts, contacts, centres;

    static ChartNames read(Connection &connection, const FigureKind *kind);
};

/// One page of the chart options.
class ChartFilterPane : public QWidget
{
    Q_OBJECT

public:
    ChartFilterPane(const ChartPageKind &page, const ChartNames &names, QWidget *parent);
    ~ChartFilterPane() override;

private:
    ChartFilter filter() const;
    void showChart();

    std::unique_ptr<Ui::ChartFilterPane> m_ui;
    ChartPageKind m_page;
};
