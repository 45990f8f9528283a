#pragma once

#include "data/changes.h"
#include "lists/figures.h"
#include "reports/modimpressao.h"
#include "settings/listlayout.h"

#include <QDate>
#include <QString>

/// The period that a view shows; each contains the ones before it.
enum class ViewPeriod { Day, Month, Year };

/// Everything in which the period views of payables, receivables and bank movements differ.
struct ViewKind
{
    Subject subject; ///< the view reloads when this changes
    QString table;
    QString titleWords; ///< after the period: " de contas a pagar"
    QString totalWords; ///< "Total de despesas: R$ "
    QString heading;    ///< of the report
    QString loadingTitle;
    bool limitedBySetting;        ///< the setting VisualizarDadosBancario can narrow the period to the month
    modimpressao::ListKind pages; ///< how the list is printed
    ListLayoutFile (*layout)();   ///< of the main window's list, whose columns the view has, too
};

const ViewKind &payableView();
const ViewKind &receivableView();
const ViewKind &bankView();

namespace periodview {

/// The period that is shown: that of the command, or the month or year that the settings limit the kind to
/// when that is shorter.
ViewPeriod shownPeriod(const ViewKind &kind, ViewPeriod period);
/// "Movimento do dia de contas a pagar", "Movimento anual - bancário".
QString title(const ViewKind &kind, ViewPeriod period);
/// "Período: 14/11/2026", "Período: 11/2026" or "Período: 2026".
QString periodText(ViewPeriod period, QDate today);
/// " order by Data ASC", or DESC, as the setting Ordem says.
QString order();
/// The query, ordered as the setting Ordem says.
QString query(const ViewKind &kind, ViewPeriod period, QDate today);
QString summary(const ViewKind &kind, ViewPeriod period, const Figures &figures);

} // namespace periodview
