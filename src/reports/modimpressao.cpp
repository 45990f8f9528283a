#include "reports/modimpressao.h"

#include "data/clock.h"
#include "data/dates.h"
#include "data/error.h"
#include "reports/html.h"
#include "settings/settings.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr int titleSize = 14;
constexpr int subtitleSize = 13;

QString moment()
{
    const QDateTime now = programclock::now();
    return dates::longDate(now.date()) + u" às "_s + dates::longTime(now.time());
}

/// A printed heading, and the headings on the screen that stand for it.
struct ListHeading
{
    QString printed;
    QStringList shown;
};

struct ListPage
{
    modimpressao::ListKind kind;
    std::vector<ListHeading> headings;
};

const std::array<ListPage, 5> &listPageTable()
{
    using enum modimpressao::ListKind;
    const QStringList date{u"Data"_s, u"Data de cadastro"_s};
    const ListHeading document{u"DOC."_s, {u"Documento"_s}};
    const QStringList description{u"Descrição"_s};
    const QStringList party{u"Fornecedor"_s, u"Cliente"_s, u"Cliente/Fornecedor"_s};
    static const std::array<ListPage, 5> table{{
        {ByDueDate,
         {{u"VENC."_s, {u"Vencimento"_s}},
          {u"DESCRIÇÃO"_s, description},
          document,
          {u"FORNECEDOR/CLIENTE"_s, party}}},
        {ByDate, {{u"DATA"_s, date}, {u"DESCRIÇÃO"_s, description}, document, {u"CLI/FORN"_s, party}}},
        {Payables,
         {{u"DATA"_s, date}, {u"DESCRIÇÃO DA DESPESA"_s, description}, document, {u"FORNECEDOR"_s, party}}},
        {Receivables,
         {{u"DATA"_s, date}, {u"DESCRIÇÃO DA RECEITA"_s, description}, document, {u"CLIENTE"_s, party}}},
        {Movements,
         {{u"DATA"_s, date},
          {u"TIPO DE MOVIMENTO"_s, {u"Tipo de movimento"_s, u"Movimento"_s}},
          {u"ORIGEM"_s, {u"Conta origem"_s, u"Origem"_s}},
          {u"DESTINO"_s, {u"Conta destino"_s, u"Destino"_s}},
          {u"VALOR"_s, {u"Valor"_s}}}},
    }};
    return table;
}

const std::vector<ListHeading> &listHeadings(modimpressao::ListKind kind)
{
    return std::ranges::find(listPageTable(), kind, &ListPage::kind)->headings;
}

int columnHeaded(const TableSource &list, const QStringList &headings)
{
    for (int column = 0; column < list.columnCount(); ++column) {
        if (headings.contains(list.heading(column), Qt::CaseInsensitive))
            return column;
    }
    return -1;
}

bool nothingToPrint(const Report &report)
{
    return !report.tables.empty() && report.lines.isEmpty() &&
           std::ranges::all_of(report.tables, [](const auto &table) { return table->rowCount() == 0; });
}

void addTables(PageDocument &pages, const Report &report, const RowForm &form)
{
    for (std::size_t i = 0; i < report.tables.size(); ++i) {
        const QString title = report.tableTitles.value(qsizetype(i));
        if (!title.isEmpty()) {
            pages.blocks.emplace_back(PageText{});
            pages.blocks.emplace_back(PageText{.text = title, .bold = true});
        }
        pages.blocks.emplace_back(PageTable{report.tables[i], form});
    }
}

void addStatistics(PageDocument &pages, const QString &statistics, const modimpressao::PageSetup &setup)
{
    const auto addRule = [&] { pages.blocks.emplace_back(PageRule{setup.ruleLength}); };
    pages.blocks.emplace_back(PageText{});
    if (setup.ruleBeforeStatistics)
        addRule();
    pages.blocks.emplace_back(PageText{.text = u"Estatísticas"_s, .bold = true});
    if (!setup.ruleBeforeStatistics)
        addRule();
    pages.blocks.emplace_back(PageText{});
    pages.blocks.emplace_back(PageText{.text = statistics});
    addRule();
}

} // namespace

namespace modimpressao {

QString generatedLine()
{
    return u"Gerado "_s + moment();
}

QString issuedLine()
{
    return u"Emitido em "_s + moment();
}

QString companyName()
{
    return settings::value(settings::companyName);
}

QString slogan()
{
    return settings::value(settings::companySlogan);
}

QString closingLine()
{
    const QString site = settings::value(settings::companySite).trimmed();
    return site.isEmpty() ? u"Relatório feito com o Tavaro"_s : site;
}

QString closingHtml()
{
    const QString site = settings::value(settings::companySite).trimmed();
    if (site.isEmpty())
        return closingLine();
    const QString address = site.contains(u"://"_s) ? site : u"https://"_s + site;
    return u"<p><a href='%1'>%2</a></p>"_s.arg(html::escaped(address), html::escaped(site));
}

QStringList pageHeader()
{
    return {generatedLine(), QString(), companyName(), slogan()};
}

QString pageFooter(const QString &title, int page)
{
    return title.toUpper() + u"     -    Página: "_s + QString::number(page);
}

QStringList headings(ListKind kind)
{
    QStringList texts;
    for (const ListHeading &heading : listHeadings(kind))
        texts << heading.printed;
    return texts;
}

PageSetup listPages(ListKind kind, const TableSource &list)
{
    RowForm form{.headings = headings(kind), .labelsShareLine = true};
    for (const ListHeading &heading : listHeadings(kind))
        form.cells.push_back(columnHeaded(list, heading.shown));
    for (int column = 0; column < list.columnCount(); ++column) {
        if (std::ranges::find(form.cells, column) == form.cells.end())
            form.labels.push_back({list.heading(column) + u": "_s, column});
    }
    return {.rows = std::move(form)};
}

PageSetup designerPages()
{
    return {.header = [] { return QStringList{issuedLine()}; },
            .footer = [](const QString &, int page,
                         int pages) { return u"Página atual: %1 de %2"_s.arg(page).arg(pages); }};
}

PageSetup movementPages()
{
    return {.fontSize = 11,
            .rows = {.cells = {0, 1, 2, 3},
                     .showHeadings = false,
                     .labels = {{u"Vencimento: "_s, 4},
                                {u"Valor: "_s, 5},
                                {u"Conta origem: "_s, 7},
                                {u"Estatus: "_s, 6},
                                {u"Informações: "_s, 8},
                                {u"Informações Adicionais: "_s, 9}}},
            .ruleLength = 132,
            .ruleBeforeStatistics = true};
}

PageDocument document(const Report &report, const PageSetup &setup)
{
    if (nothingToPrint(report))
        throw Error(Error::Kind::Data, u"Não há registros a imprimir"_s);
    const auto footer = setup.footer;
    PageDocument pages{.name = report.title, .fontSize = setup.fontSize, .header = setup.header()};
    pages.footer = [title = report.title, footer](int page, int count) {
        return footer ? footer(title, page, count) : pageFooter(title, page);
    };
    pages.blocks.emplace_back(PageText{.text = report.title, .size = titleSize, .bold = true});
    if (!report.subtitle.isEmpty())
        pages.blocks.emplace_back(PageText{.text = report.subtitle, .size = subtitleSize, .bold = true});
    if (!report.filterText.isEmpty())
        pages.blocks.emplace_back(PageText{.text = report.filterText});
    addTables(pages, report, setup.rows);
    if (report.tables.empty())
        pages.blocks.emplace_back(PageRule{});
    if (!report.lines.isEmpty()) {
        pages.blocks.emplace_back(PageText{});
        pages.blocks.emplace_back(PageText{.text = report.lines.join(u'\n')});
    }
    if (!report.statistics.isEmpty())
        addStatistics(pages, report.statistics, setup);
    return pages;
}

} // namespace modimpressao
