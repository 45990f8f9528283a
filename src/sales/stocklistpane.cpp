#include "sales/stocklistpane.h"
#include "ui_stocklistpane.h"

#include "data/clock.h"
#include "entries/entryfilter.h"
#include "lists/period.h"
#include "settings/database.h"

#include <QComboBox>

using namespace Qt::StringLiterals;

StockListPane::StockListPane(const StockKind &kind, const StockListNames &names, QWidget *parent)
    : ListPane(parent), m_ui(std::make_unique<Ui::StockListPane>()), m_kind(kind)
{
    m_ui->setupUi(this);
    m_ui->filtro->setObjectName(names.period);
    m_ui->tipo->setObjectName(names.status);
    m_ui->produto->setObjectName(names.product);
    m_ui->contato->setObjectName(names.contact);
    m_ui->lista->setObjectName(names.list);
    m_ui->total->setObjectName(names.totals);
    m_ui->rotuloContato->setText(names.contactLabel);

    setUp(m_ui->lista, m_ui->total,
          new ListFeed(*m_ui->lista, stocklists::columns(kind), std::make_unique<StockTotals>(kind),
                       kind.loadingTitle));
    m_ui->lista->setAccessibleName(kind.title);
    m_ui->lista->setEmptyText(kind.emptyText);
    m_ui->filtro->addItems(period::choices());
    m_ui->tipo->addItems(entryfilter::statusChoices());
    m_ui->produto->addItem(entryfilter::allProducts.toString());
    m_ui->contato->addItem(kind.side.allContacts);
    for (QComboBox *box : {m_ui->filtro, m_ui->tipo, m_ui->produto, m_ui->contato})
        filters().add(box);
}

StockListPane::~StockListPane() = default;

StockFilter StockListPane::filter() const
{
    return {.period = m_ui->filtro->currentText(),
            .status = m_ui->tipo->currentText(),
            .product = m_ui->produto->currentText(),
            .contact = m_ui->contato->currentText()};
}

QString StockListPane::query() const
{
    return stocklists::query(m_kind, filter(), programclock::today());
}

QString StockListPane::totalsText() const
{
    return static_cast<const StockTotals &>(feed().totals()).text();
}

void StockListPane::refillFilterBoxes()
{
    const std::shared_ptr<Connection> database = openDatabase();
    FilterBoxes::refill(m_ui->produto, entryfilter::allProducts.toString(),
                        stocklists::productNames(*database, m_kind));
    FilterBoxes::refill(m_ui->contato, m_kind.side.allContacts, stocklists::contactNames(*database, m_kind));
}
