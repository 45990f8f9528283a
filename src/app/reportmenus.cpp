#include "app/reportmenus.h"

#include "analysis/frmcompara.h"
#include "analysis/frmconfextrato.h"
#include "analysis/frmconfgrafico.h"
#include "analysis/frmconfluxo.h"
#include "analysis/frmconfrelatorio.h"
#include "analysis/frmconfrelatorio2.h"
#include "analysis/frmdatabanco.h"
#include "analysis/frmestatisticas.h"
#include "analysis/frmgeradorret.h"
#include "analysis/frmgerenciamento.h"
#include "analysis/frmpormes.h"
#include "analysis/frmprojecao.h"
#include "analysis/frmrelacaodesluc.h"
#include "analysis/statisticscommands.h"
#include "entries/frmfincli.h"
#include "mail/frmviaemail.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>

namespace {

using Open = void (*)(QWidget *parent);

/// An entry of a menu, or, without anything to open, a submenu.
struct Entry
{
    const char16_t *menu; ///< object name of the menu that the entry is in
    const char16_t *name; ///< null for a separator
    const char16_t *text;
    Open open;
};

constexpr Open submenu = nullptr;

constexpr Entry separator(const char16_t *menu)
{
    return {menu, nullptr, nullptr, nullptr};
}

template <const HistorySide &(*side)()>
void openHistory(QWidget *parent)
{
    frmFinCli::open(side(), parent);
}

template <frmdatabanco::Asks asks>
void openDates(QWidget *parent)
{
    frmdatabanco::open(asks, parent);
}

template <const Side &(*side)(), ViewPeriod period>
void openReport(QWidget *parent)
{
    statisticscommands::movementReport(side(), period, parent);
}

template <const FigureKind &(*kind)(), ViewPeriod period>
void openStatistics(QWidget *parent)
{
    statisticscommands::statistics(kind(), period, parent);
}

template <frmViaEmail::Tab tab>
void openMail(QWidget *parent)
{
    frmViaEmail::open(tab, parent);
}

template <const FigureKind &(*kind)(), ViewPeriod period>
void openChart(QWidget *parent)
{
    statisticscommands::chart(kind(), period, parent);
}

template <frmConfGrafico::Page page>
void openChartOptions(QWidget *parent)
{
    frmConfGrafico::open(page, parent);
}

template <frmConfRelatorio::Page page>
void openReportOptions(QWidget *parent)
{
    frmConfRelatorio::open(page, parent);
}

template <dialogreports::Choice kind>
void openNameReports(QWidget *parent)
{
    frmConfRelatorio2::open(kind, parent);
}

template <const Side &(*side)(), monthview::Basis basis>
void openMonths(QWidget *parent)
{
    frmPorMes::open(side(), basis, parent);
}

template <cashflow::Mode mode>
void openCashFlow(QWidget *parent)
{
    frmconfluxo::open(mode, parent);
}

template <const Side &(*side)()>
void openGoals(QWidget *parent)
{
    frmProjecao::open(side(), parent);
}

template <const Side &(*side)(), comparison::Span span>
void openComparison(QWidget *parent)
{
    frmCompara::open(side(), span, parent);
}

using enum ViewPeriod;

constexpr Entry entries[] = {
    separator(u"mnuvispagar"),
    {u"mnuvispagar", u"mnuviscontmespagar", u"Um ano, mês a m&ês...",
     openMonths<payable, monthview::Basis::EntryDate>},
    {u"mnuvispagar", u"mnuvisvencpagar", u"&Vencimentos, mês a mês...",
     openMonths<payable, monthview::Basis::DueDate>},
    separator(u"mnuvisreceber"),
    {u"mnuvisreceber", u"mnuviscontmesreceber", u"Um ano, mês a m&ês...",
     openMonths<receivable, monthview::Basis::EntryDate>},
    {u"mnuvisreceber", u"mnuvisvencreceber", u"&Vencimentos, mês a mês...",
     openMonths<receivable, monthview::Basis::DueDate>},
    separator(u"mnuexibir"),
    {u"mnuexibir", u"mnufincli", u"Histórico financeiro de cl&iente...", openHistory<clientHistory>},
    {u"mnuexibir", u"mnufinforn", u"Histórico financeiro de &fornecedor...", openHistory<supplierHistory>},
    {u"mnuexibir", u"mnuextrato", u"E&xtrato bancário...",
     [](QWidget *parent) { frmconfextrato::open(parent); }},

    {u"barramenu", u"mnuanalises", u"A&nálises", submenu},
    {u"mnuanalises", u"mnufluxo", u"&Fluxo de caixa", submenu},
    {u"mnufluxo", u"mnufluxopagar", u"Contas a &pagar...", openCashFlow<cashflow::Mode::Payables>},
    {u"mnufluxo", u"mnufluxoreceber", u"Contas a &receber...", openCashFlow<cashflow::Mode::Receivables>},
    {u"mnufluxo", u"mnufluxogeral", u"&Geral...", openCashFlow<cashflow::Mode::General>},
    {u"mnuanalises", u"mnumetadesp", u"&Metas de despesas...", openGoals<payable>},
    {u"mnuanalises", u"mnumetarec", u"Metas de r&eceitas...", openGoals<receivable>},
    {u"mnuanalises", u"mnucomparar", u"&Comparações", submenu},
    {u"mnucomparar", u"mnucompanodesp", u"&Despesas entre anos...",
     openComparison<payable, comparison::Span::Year>},
    {u"mnucomparar", u"mnucompmesdesp", u"Despesas entre &meses...",
     openComparison<payable, comparison::Span::Month>},
    {u"mnucomparar", u"mnucompanorec", u"&Receitas entre anos...",
     openComparison<receivable, comparison::Span::Year>},
    {u"mnucomparar", u"mnucompmesrec", u"Receitas entre me&ses...",
     openComparison<receivable, comparison::Span::Month>},
    separator(u"mnuanalises"),
    {u"mnuanalises", u"mnugerendesp", u"&Gerenciamento de despesas...",
     [](QWidget *parent) { frmGerenciamento::open(frmGerenciamento::Payables, parent); }},
    {u"mnuanalises", u"mnugerenlucros", u"Gerenciamento de &lucros...",
     [](QWidget *parent) { frmGerenciamento::open(frmGerenciamento::Receivables, parent); }},
    {u"mnuanalises", u"mnulucrosdesp", u"Des&pesas e lucros por conta...",
     [](QWidget *parent) { frmRelacaoDesLuc::open(parent); }},

    {u"barramenu", u"mnurelatorios", u"&Relatórios", submenu},
    {u"mnurelatorios", u"mnuretmovdespesas", u"Movimento de &despesas", submenu},
    {u"mnuretmovdespesas", u"mnuestdespdia", u"Do &dia", openReport<payable, Day>},
    {u"mnuretmovdespesas", u"mnuestdespmes", u"&Mensal", openReport<payable, Month>},
    {u"mnuretmovdespesas", u"mnuestdespano", u"&Anual", openReport<payable, Year>},
    {u"mnurelatorios", u"mnuretmovlucros", u"Movimento de &lucros", submenu},
    {u"mnuretmovlucros", u"mnuestlucrosdia", u"Do &dia", openReport<receivable, Day>},
    {u"mnuretmovlucros", u"mnuestlucrosmes", u"&Mensal", openReport<receivable, Month>},
    {u"mnuretmovlucros", u"mnuestlucrosano", u"&Anual", openReport<receivable, Year>},
    separator(u"mnurelatorios"),
    {u"mnurelatorios", u"mnuretpagar", u"Contas a &pagar...", openReportOptions<frmConfRelatorio::Payables>},
    {u"mnurelatorios", u"mnuretreceber", u"Contas a &receber...",
     openReportOptions<frmConfRelatorio::Receivables>},
    {u"mnurelatorios", u"mnuretbancario", u"Movimento &bancário...",
     openReportOptions<frmConfRelatorio::Movements>},
    {u"mnurelatorios", u"mnuretestoque", u"&Estoque...", openReportOptions<frmConfRelatorio::Stock>},
    separator(u"mnurelatorios"),
    {u"mnurelatorios", u"mnuretclientes", u"De um &cliente...",
     openNameReports<dialogreports::Choice::Client>},
    {u"mnurelatorios", u"mnuretfornecedores", u"De um &fornecedor...",
     openNameReports<dialogreports::Choice::Supplier>},
    {u"mnurelatorios", u"mnuretcentrocusto", u"De um centro de c&usto...",
     openNameReports<dialogreports::Choice::CostCentre>},
    {u"mnurelatorios", u"mnuretcentrolucro", u"De um centro de lucr&o...",
     openNameReports<dialogreports::Choice::ProfitCentre>},
    {u"mnurelatorios", u"mnuretpagamento", u"De uma for&ma de pagamento...",
     openNameReports<dialogreports::Choice::Payment>},
    separator(u"mnurelatorios"),
    {u"mnurelatorios", u"mnuretint", u"Relatório &integrado...",
     [](QWidget *parent) { frmGeradorRet::open(parent); }},
    separator(u"mnurelatorios"),
    {u"mnurelatorios", u"mnuretviaemail", u"Enviar por e-m&ail...", openMail<frmViaEmail::Report>},

    {u"barramenu", u"mnuestatistica", u"E&statísticas", submenu},
    {u"mnuestatistica", u"mnuestpagar", u"Contas a &pagar", submenu},
    {u"mnuestpagar", u"mnuestpagardia", u"Do &dia", openStatistics<payableFigures, Day>},
    {u"mnuestpagar", u"mnuestpagarmes", u"Do &mês", openStatistics<payableFigures, Month>},
    {u"mnuestpagar", u"mnuestpagarano", u"&Anual", openStatistics<payableFigures, Year>},
    {u"mnuestatistica", u"mnuestreceber", u"Contas a &receber", submenu},
    {u"mnuestreceber", u"mnuestreceberdia", u"Do &dia", openStatistics<receivableFigures, Day>},
    {u"mnuestreceber", u"mnuestrecebermes", u"Do &mês", openStatistics<receivableFigures, Month>},
    {u"mnuestreceber", u"mnuestreceberano", u"&Anual", openStatistics<receivableFigures, Year>},
    {u"mnuestatistica", u"mnuestbancario", u"&Movimento bancário", submenu},
    {u"mnuestbancario", u"mnuestbancariodia", u"Do &dia", openStatistics<bankFigures, Day>},
    {u"mnuestbancario", u"mnuestbancariomes", u"Do &mês", openStatistics<bankFigures, Month>},
    {u"mnuestbancario", u"mnuestbancarioano", u"&Anual", openStatistics<bankFigures, Year>},
    separator(u"mnuestatistica"),
    {u"mnuestatistica", u"mnuestplanopagar", u"Plano de contas (contas a pa&gar)",
     [](QWidget *parent) { statisticscommands::centres(payable(), parent); }},
    {u"mnuestatistica", u"mnuestplanoreceber", u"P&lano de contas (contas a receber)",
     [](QWidget *parent) { statisticscommands::centres(receivable(), parent); }},
    {u"mnuestatistica", u"mnuestestoque", u"&Estoque (entrada e saída)", statisticscommands::stock},
    {u"mnuestatistica", u"mnuestvendas", u"Resumo de &vendas", statisticscommands::sales},
    separator(u"mnuestatistica"),
    {u"mnuestatistica", u"mnuestbancos", u"&Caixas e bancos em um período...",
     openDates<frmdatabanco::Asks::Range>},
    {u"mnuestatistica", u"mnuestsaldodia", u"&Saldo dos bancos em um dia...",
     openDates<frmdatabanco::Asks::End>},
    separator(u"mnuestatistica"),
    {u"mnuestatistica", u"mnuestatisticas", u"&Banco de dados...",
     [](QWidget *parent) { frmEstatisticas::open(parent); }},
    {u"mnuestatistica", u"mnuestviaemail", u"E&nviar por e-mail...", openMail<frmViaEmail::Statistics>},

    {u"barramenu", u"mnugraficos", u"&Gráficos", submenu},
    {u"mnugraficos", u"mnugradespesas", u"Movimento de &despesas", submenu},
    {u"mnugradespesas", u"mnugrapagardia", u"Do &dia", openChart<payableFigures, Day>},
    {u"mnugradespesas", u"mnugrapagarmes", u"Do &mês", openChart<payableFigures, Month>},
    {u"mnugradespesas", u"mnugrapagarano", u"&Anual", openChart<payableFigures, Year>},
    {u"mnugraficos", u"mnugralucros", u"Movimento de &lucros", submenu},
    {u"mnugralucros", u"mnugrareceberdia", u"Do &dia", openChart<receivableFigures, Day>},
    {u"mnugralucros", u"mnugrarecebermes", u"Do &mês", openChart<receivableFigures, Month>},
    {u"mnugralucros", u"mnugrareceberano", u"&Anual", openChart<receivableFigures, Year>},
    {u"mnugraficos", u"mnugrabancos", u"Movimento &bancário", submenu},
    {u"mnugrabancos", u"mnugrabancariodia", u"Do &dia", openChart<bankFigures, Day>},
    {u"mnugrabancos", u"mnugrabancariomes", u"Do &mês", openChart<bankFigures, Month>},
    {u"mnugrabancos", u"mnugrabancarioano", u"&Anual", openChart<bankFigures, Year>},
    separator(u"mnugraficos"),
    {u"mnugraficos", u"mnugrapagar", u"Contas a &pagar, com filtros...",
     openChartOptions<frmConfGrafico::Payables>},
    {u"mnugraficos", u"mnugrareceber", u"Contas a &receber, com filtros...",
     openChartOptions<frmConfGrafico::Receivables>},
    {u"mnugraficos", u"mnugrabancario", u"&Movimento bancário, com filtros...",
     openChartOptions<frmConfGrafico::Movements>},
    {u"mnugraficos", u"mnugradr", u"Despesas &x receitas...", openChartOptions<frmConfGrafico::BothSides>},
};

QMenu *newMenu(QMainWindow &window, const Entry &entry)
{
    auto *menu = new QMenu(QString::fromUtf16(entry.text), &window);
    menu->setObjectName(QString::fromUtf16(entry.name));
    return menu;
}

} // namespace

void makeReportMenus(QMainWindow &window)
{
    auto *bar = window.menuBar();
    QAction *tools = window.findChild<QMenu *>(QStringLiteral("mnuferramentas"))->menuAction();
    for (const Entry &entry : entries) {
        const QString place = QString::fromUtf16(entry.menu);
        if (place == bar->objectName()) {
            bar->insertMenu(tools, newMenu(window, entry));
            continue;
        }
        auto *menu = window.findChild<QMenu *>(place);
        Q_ASSERT(menu);
        if (!entry.name) {
            menu->addSeparator();
        } else if (!entry.open) {
            menu->addMenu(newMenu(window, entry));
        } else {
            QAction *action = menu->addAction(QString::fromUtf16(entry.text));
            action->setObjectName(QString::fromUtf16(entry.name));
            QObject::connect(action, &QAction::triggered, &window,
                             [&window, open = entry.open] { open(&window); });
        }
    }
}
