#include "sales/stocklistpane.h"
#include "ui_stocklistpane.h"

#include "data/clock.h"
#include "entries/entryfilter.h"
#include "lists/period.h"
#include "settings/database.h"
#include "widgets/boxes.h"
#include "widgets/frmcarregando.h"
#include "widgets/messages.h"
#include "widgets/waittext.h"

#include <QSignalBlocker>

using namespace Qt::StringLiterals;

StockListPane::StockListPane(const StockKind &kind, const StockListNames &names, QWidget *parent)
    : QWidget(parent), m_ui(std::make_unique<Ui::StockListPane>()), m_kind(kind)
{
    m_ui->setupUi(this);
    m_ui->filtro->setObjectName(names.period);
    m_ui->tipo->setObjectName(names.status);
    m_ui->produto->setObjectName(names.product);
    m_ui->contato->setObjectName(names.contact);
    m_ui->lista->setObjectName(names.list);
    m_ui->total->setObjectName(names.totals);
    m_ui->rotuloContato->setText(names.contactLabel);

    m_ui->lista->setAccessibleName(kind.title);
    m_ui->lista->setColumns(stocklists::columns(kind));
    m_ui->lista->setEmptyText(kind.emptyText);
    m_ui->total->setText(StockTotals().text(kind));
    m_ui->filtro->addItems(period::choices());
    m_ui->tipo->addItems(entryfilter::statusChoices());
    m_ui->produto->addItem(entryfilter::allProducts.toString());
    m_ui->contato->addItem(kind.side.allContacts);
    m_applied = filter();
    for (QComboBox *box : {m_ui->filtro, m_ui->tipo, m_ui->produto, m_ui->contato})
        connect(box, &QComboBox::currentTextChanged, this, &StockListPane::filterChanged);
}

StockListPane::~StockListPane() = default;

ListView &StockListPane::list()
{
    return *m_ui->lista;
}

QString StockListPane::totals() const
{
    return m_ui->total->text();
}

StockFilter StockListPane::filter() const
{
    return {.period = m_ui->filtro->currentText(),
            .status = m_ui->tipo->currentText(),
            .product = m_ui->produto->currentText(),
            .contact = m_ui->contato->currentText()};
}

bool StockListPane::reload()
{
    return messages::guarded(this, messages::generalPrefix, [this] {
        const StockFilter wanted = filter();
        WaitProgress progress(window(), m_kind.loadingTitle, listWaitText());
        StockList entries = stocklists::load(
            *openDatabase(), m_kind, stocklists::query(m_kind, wanted, programclock::today()), &progress);
        m_ui->lista->setRows(std::move(entries.rows));
        m_ui->total->setText(entries.totals.text(m_kind));
        m_applied = wanted;
    });
}

void StockListPane::filterChanged()
{
    if (reload())
        return;
    const std::pair<QComboBox *, QString> shown[] = {{m_ui->filtro, m_applied.period},
                                                     {m_ui->tipo, m_applied.status},
                                                     {m_ui->produto, m_applied.product},
                                                     {m_ui->contato, m_applied.contact}};
    for (const auto &[box, text] : shown) {
        const QSignalBlocker blocker(box);
        boxes::choose(box, text);
    }
}

void StockListPane::refresh()
{
    if (!reload())
        return;
    messages::guarded(this, messages::generalPrefix, [this] {
        const std::shared_ptr<Connection> database = openDatabase();
        Connection &connection = *database;
        boxes::refill(m_ui->produto, QStringList(entryfilter::allProducts.toString()) +
                                         stocklists::productNames(connection, m_kind));
        boxes::refill(m_ui->contato,
                      QStringList(m_kind.side.allContacts) + stocklists::contactNames(connection, m_kind));
    });
}
