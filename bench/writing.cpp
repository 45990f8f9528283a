// What writes: an entry, a run of installments, exports, pages.

#include "data.h"
#include "data/dialect.h"
#include "entries/entry.h"
#include "entries/entryfilter.h"
#include "entries/entrylist.h"
#include "entries/installments.h"
#include "floor.h"
#include "measures.h"
#include "process.h"
#include "reports/modimpressao.h"
#include "reports/reporttext.h"
#include "settings/database.h"
#include "stock/stock.h"
#include "table.h"
#include "widgets/documentpages.h"
#include "widgets/tablemodel.h"

#include <QFile>
#include <QTemporaryDir>

#include <cstdio>
#include <numeric>

using namespace Qt::StringLiterals;

namespace {

const QString product = u"Caderno universitário 200 folhas"_s;

EntryForm entryForm()
{
    return {.status = u"Pendente"_s,
            .account = u"Caixa da loja"_s,
            .contact = u"Distribuidora Aurora"_s,
            .date = u"30/06/2026"_s,
            .due = u"15/07/2026"_s,
            .description = u"Mercadorias"_s,
            .document = u"NF 001234"_s,
            .notes = u"entrega pela manhã"_s,
            .value = u"1.234,56"_s,
            .unitCost = QString(),
            .product = product,
            .quantity = u"12"_s,
            .currency = u"R$"_s};
}

InstallmentsForm installmentsForm()
{
    return {.status = u"Pendente"_s,
            .account = u"Caixa da loja"_s,
            .contact = u"Distribuidora Aurora"_s,
            .date = u"30/06/2026"_s,
            .description = u"Mercadorias"_s,
            .document = u"NF 001234"_s,
            .notes = u"entrega pela manhã"_s,
            .value = u"1.234,56"_s,
            .currency = u"R$"_s,
            .count = u"600"_s,
            .monthly = true,
            .days = u"30"_s};
}

/// The rows above as bare statements.
constexpr char insertEntry[] = "INSERT INTO pagar (estatus, origem, fornecedor, data, descricao, documento, "
                               "informacoes, valor, vencimento, "
                               "produto, qtde, moeda) VALUES ('Pendente', 'Caixa da loja', 'Distribuidora "
                               "Aurora', '2026/06/30', 'Mercadorias', "
                               "'NF 001234 ', 'entrega pela manhã ', '1.234,56', '2026/07/15', 'Caderno "
                               "universitário 10 matérias', '12', 'R$')";
/// Every due date is another place of the file, as in the run itself.
constexpr char insertInstallments[] =
    "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 600) "
    "INSERT INTO pagar (estatus, origem, fornecedor, data, descricao, documento, informacoes, valor, "
    "vencimento, moeda) SELECT 'Pendente', 'Caixa da loja', 'Distribuidora Aurora', '2026/06/30', "
    "'Mercadorias', 'NF 001234 ', 'entrega pela manhã  - Parcela ' || i || ' de 600', '1.234,56', "
    "strftime('%Y/%m/%d', '2026-06-30', i || ' months'), 'R$' FROM n";

QString payablesQuery()
{
    return entryfilter::query(payable(), {}, QDate(2026, 6, 30));
}

/// The list of all payables, read from the database.
Report payablesReport()
{
    KeyedList list(entrylist::columns(payable()), std::make_unique<EntryTotals>(),
                   [] { return openDatabase(); });
    ListLoad load(openDatabase(), ListQuery(payablesQuery()), list.noTotals());
    load.run(QDeadlineTimer(QDeadlineTimer::Forever));
    list.take(load);
    TableModel model;
    model.setColumns(list.columns());
    model.showKeyed(&list.rows());
    std::vector<int> columns(list.columns().size());
    std::iota(columns.begin(), columns.end(), 0);
    Report report;
    report.title = u"Contas a pagar"_s;
    report.tables = {model.snapshot(columns)};
    return report;
}

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Writes `bytes` in as many pieces as the query has rows, each when its row was read.
void writeBare(Floor &floor, const QByteArray &sql, const QByteArray &bytes, qint64 rows, const QString &path)
{
    FILE *file = std::fopen(qPrintable(path), "wb");
    qint64 row = 0, written = 0;
    floor.readTexts(sql, [&] {
        const qint64 end = ++row * bytes.size() / rows;
        std::fwrite(bytes.constData() + written, 1, std::size_t(end - written), file);
        written = end;
    });
    std::fclose(file);
}

void measureExport(Table &table, Floor &floor, const QString &kind,
                   void (*save)(const QString &, const Report &, Progress *))
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"ours"_s);
    save(path, payablesReport(), nullptr);
    const QByteArray bytes = contents(path);
    const QByteArray sql = dialect::translate(payablesQuery()).sql.toUtf8();
    const Timing timing = inTurn(
        7, [&] { save(path, payablesReport(), nullptr); },
        [&] { writeBare(floor, sql, bytes, 100'000, folder.filePath(u"floor"_s)); });
    table.add(u"100,000 payables read and saved as "_s + kind, timing, 3);
}

} // namespace

void measureSaving(Table &table)
{
    const QString source = benchdata::large();
    const QString folder = benchdata::copyOf(source, u"saving"_s);
    Floor floor(benchdata::databaseIn(benchdata::copyOf(source, u"saving-floor"_s)));
    benchdata::use(folder);
    if (!stock::onHand(*openDatabase(), product))
        qFatal("No stock to move: there is no product \"%s\"", qPrintable(product));
    const auto bare = [&floor](const char *insert) {
        floor.execute("BEGIN IMMEDIATE");
        floor.execute(insert);
        floor.execute("COMMIT");
    };
    const EntryForm one = entryForm();
    table.add(u"Saving an entry with its stock move, against a bare insert"_s,
              inTurn(
                  400, [&] { entry::save(*openDatabase(), payable(), one, QString()); },
                  [&] { bare(insertEntry); }),
              1.5);
    const InstallmentsForm many = installmentsForm();
    table.add(u"Saving 600 installments, against 600 bare inserts"_s,
              inTurn(
                  41, [&] { installments::write(*openDatabase(), payable(), many, nullptr); },
                  [&] { bare(insertInstallments); }),
              2);
}

void measureReports(Table &table)
{
    const QString folder = benchdata::large();
    benchdata::use(folder);
    Floor floor(benchdata::databaseIn(folder));
    measureExport(table, floor, u"text"_s, reporttext::saveText);
    measureExport(table, floor, u"HTML"_s, reporttext::saveHtml);
    const Finished printed = runAlone(u"--print"_s, folder);
    table.add(u"Peak memory of printing 100,000 payables, MiB"_s, QString::number(printed.mebibytes, 'f', 0),
              u"-"_s, printed.mebibytes, 300);
}

void printOnly(const QString &folder)
{
    benchdata::use(folder);
    const Report report = payablesReport();
    const QTemporaryDir target;
    DocumentPages pages(modimpressao::document(
        report, modimpressao::listPages(modimpressao::ListKind::Payables, *report.tables.front())));
    const QPageLayout paper(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF(12, 12, 12, 12),
                            QPageLayout::Millimeter);
    pageprinter::savePdf(target.filePath(u"pages.pdf"_s), pages, paper, nullptr);
}
