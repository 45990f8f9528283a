// What a command costs until the whole window shows its effect: list, totals line, filter boxes, balances.

#include "analysis/todaypane.h"
#include "app/frmprincipal.h"
#include "bank/accountpane.h"
#include "data.h"
#include "entries/entry.h"
#include "entries/entryfilter.h"
#include "entries/entrylist.h"
#include "entries/entrypane.h"
#include "floor.h"
#include "idle.h"
#include "measures.h"
#include "settings/database.h"
#include "settings/settings.h"
#include "table.h"

#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QLocale>
#include <QSaveFile>

using namespace Qt::StringLiterals;

void waitUntilIdle(QWidget &window)
{
    const auto isBusy = [&window] {
        for (const ListPane *pane : window.findChildren<ListPane *>())
            if (pane->feed().isLoading() || pane->feed().serial() == 0)
                return true;
        return window.findChild<AccountPane *>()->isLoading() || window.findChild<TodayPane *>()->isLoading();
    };
    do
        QCoreApplication::processEvents();
    while (isBusy());
    QCoreApplication::processEvents();
}

namespace {

constexpr int runs = 7;
const QDate today(2026, 6, 30);

/// A main window on a database of that many entries, and the bare store on a copy of it.
class Measured
{
public:
    Measured(Table &table, qint64 entries)
        : m_table(table),
          m_size(QLocale(QLocale::English).toString(entries)),
          m_milliseconds(entries > 100'000 ? 300 : 100),
          m_folder(benchdata::copyOf(benchdata::grown(entries), u"window"_s)),
          m_floor(benchdata::databaseIn(benchdata::copyOf(m_folder, u"window-floor"_s)))
    {
        benchdata::use(m_folder);
        settings::setValue(settings::dueAlerts, QStringLiteral("0")); // the window alone
        m_window.resize(1366, 728);
        m_window.show();
        m_window.start();
        waitUntilIdle(m_window);
        for (EntryPane *pane : m_window.findChildren<EntryPane *>())
            if (&pane->side() == &payable())
                m_pane = pane;
    }

    void filters();
    void headings();
    void writes();

private:
    /// The bare store knows neither the program's functions nor its collation: it orders the texts as they
    /// are.
    QByteArray keys(const EntryFilter &filter, const std::optional<HeadingSort> &sort = {}) const
    {
        return ListQuery(entryfilter::query(payable(), filter, today), sort)
            .ordered({u"estatus"_s, u"valor"_s, u"qtde"_s})
            .replace("stored_amount", "")
            .replace(" COLLATE name_order", "");
    }
    /// The least that a screen takes to show another list.
    void readAndPaint(const QByteArray &sql)
    {
        m_floor.readTexts(sql);
        m_pane->list().viewport()->repaint();
    }
    /// A choice of a filter is kept on the disk as well.
    void keepOnDisk() const
    {
        QSaveFile file(m_folder + u"/floor.ini"_s);
        file.open(QIODevice::WriteOnly);
        file.write("[Tavaro]\n");
        file.commit();
    }
    void filter(const QString &what, const QString &box, const QString &choice, const EntryFilter &filter);
    /// `ours` is followed by whatever the window does about it; `back`, which is not measured, undoes it.
    void add(const QString &what, const std::function<void()> &ours, const std::function<void()> &back,
             const std::function<void()> &floor);

    Table &m_table;
    QString m_size;
    double m_milliseconds;
    QString m_folder;
    Floor m_floor;
    frmPrincipal m_window;
    EntryPane *m_pane = nullptr; ///< the payables
};

void Measured::add(const QString &what, const std::function<void()> &ours, const std::function<void()> &back,
                   const std::function<void()> &floor)
{
    std::vector<double> ofOurs, ofFloor;
    for (int i = 0; i <= runs; ++i) {
        const double took = seconds([&] {
            ours();
            waitUntilIdle(m_window);
        });
        back();
        waitUntilIdle(m_window);
        const double bare = seconds(floor);
        if (i == 0) // warms up
            continue;
        ofOurs.push_back(took);
        ofFloor.push_back(bare);
    }
    const Timing timing{median(ofOurs), median(ofFloor)};
    m_table.add(u"%1 at %2 entries"_s.arg(what, m_size), timing, 2);
    m_table.add(u"The same, ms"_s, QString::number(timing.ours * 1e3, 'f', 1), u"-"_s, timing.ours * 1e3,
                m_milliseconds);
}

void Measured::filter(const QString &what, const QString &box, const QString &choice,
                      const EntryFilter &filter)
{
    auto *combo = m_pane->findChild<QComboBox *>(box);
    const QString all = combo->itemText(0);
    const QByteArray sql = keys(filter);
    add(
        what, [&] { combo->setCurrentText(choice); }, [&] { combo->setCurrentText(all); },
        [&] {
            readAndPaint(sql);
            keepOnDisk();
        });
}

void Measured::filters()
{
    EntryFilter byAccount, byYear, pending;
    byAccount.basedOn = byYear.basedOn = pending.basedOn = u"Data vencimento"_s;
    byAccount.account = m_pane->findChild<QComboBox *>(u"cbobancop"_s)->itemText(1);
    byYear.period = u"apenas deste ano"_s;
    pending.status = u"Pendentes"_s;
    filter(u"Filter by account"_s, u"cbobancop"_s, byAccount.account, byAccount);
    filter(u"Filter by year"_s, u"cbofiltrop"_s, byYear.period, byYear);
    filter(u"Filter by status"_s, u"cbotipop"_s, pending.status, pending);
}

void Measured::headings()
{
    EntryFilter all;
    all.basedOn = u"Data vencimento"_s;
    for (const QString &key : {u"valor"_s, u"vencimento"_s, u"fornecedor"_s}) {
        const int column = entrylist::columnOf(payable(), key);
        const HeadingSort sort{entrylist::columns(payable())[std::size_t(column)], true};
        const QByteArray sql = keys(all, sort);
        QHeaderView *header = m_pane->list().header();
        add(
            u"Heading \"%1\""_s.arg(sort.column.title),
            [&] { header->setSortIndicator(column, Qt::DescendingOrder); },
            [&] { header->setSortIndicator(-1, Qt::AscendingOrder); }, [&] { readAndPaint(sql); });
    }
}

/// On entries that nothing else touches, the youngest ones.
void Measured::writes()
{
    const EntryForm form{.status = u"Pendente"_s,
                         .account = u"Caixa da loja"_s,
                         .contact = u"Distribuidora Aurora"_s,
                         .date = u"30/06/2026"_s,
                         .due = u"15/07/2026"_s,
                         .description = u"Mercadorias"_s,
                         .document = u"NF 001234"_s,
                         .notes = u"entrega pela manhã"_s,
                         .value = u"1.234,56"_s,
                         .unitCost = {},
                         .product = u"-"_s,
                         .quantity = {},
                         .currency = u"R$"_s};
    const auto bare = [this](const QByteArray &sql) {
        m_floor.execute("BEGIN IMMEDIATE");
        m_floor.execute(sql.constData());
        m_floor.execute("COMMIT");
        m_pane->list().viewport()->repaint();
    };
    const auto nothing = [] {};
    const int first = m_pane->list().rowCount() - 2 * runs - 4;
    int settled = first, removed = first, bareSettled = first, bareRemoved = first;
    const auto code = [](int number) { return QString::number(number); };
    add(
        u"Saving an entry"_s, [&] { entry::save(*openDatabase(), payable(), form, QString()); }, nothing,
        [&] {
            bare("INSERT INTO pagar (estatus, origem, fornecedor, data, descricao, documento, informacoes, "
                 "valor, vencimento, produto, qtde, moeda) VALUES ('Pendente', 'Caixa da loja', "
                 "'Distribuidora Aurora', '2026/06/30', 'Mercadorias', 'NF 001234 ', 'entrega pela manhã ', "
                 "'1.234,56', '2026/07/15', '-', '', 'R$')");
        });
    add(
        u"Settling an entry"_s, [&] { entry::settle(*openDatabase(), payable(), {code(++settled)}, today); },
        nothing,
        [&] {
            bare("UPDATE pagar SET estatus = 'Concluído', vencimento = '30/06/2026' WHERE código = " +
                 QByteArray::number(++bareSettled));
        });
    add(
        u"Deleting an entry"_s,
        [&] {
            entry::remove(*openDatabase(), payable(), {{code(++removed), u"-"_s, {}}});
        },
        nothing, [&] { bare("DELETE FROM pagar WHERE código = " + QByteArray::number(++bareRemoved)); });
}

} // namespace

void measureWindow(Table &table)
{
    for (const qint64 entries : {100'000, 1'000'000}) {
        Measured measured(table, entries);
        measured.filters();
        measured.headings();
        measured.writes();
    }
}
