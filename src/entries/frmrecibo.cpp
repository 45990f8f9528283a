#include "entries/frmrecibo.h"
#include "ui_frmrecibo.h"

#include "data/clock.h"
#include "reports/exportcommands.h"

using namespace Qt::StringLiterals;

frmRecibo::frmRecibo(QWidget *parent) : Screen(parent), m_ui(std::make_unique<Ui::frmRecibo>())
{
    m_ui->setupUi(this);
    prepare();
    m_ui->txtvalor->setPrefix(u"R$ "_s);
    connect(m_ui->cmdimprimir, &QPushButton::clicked, this, &frmRecibo::print);
    connect(m_ui->cmdsair, &QPushButton::clicked, this, &QDialog::close);
}

frmRecibo::~frmRecibo() = default;

frmRecibo *frmRecibo::open(QWidget *parent)
{
    return shown(std::unique_ptr<frmRecibo>(new frmRecibo(parent)));
}

frmRecibo *frmRecibo::openOf(const Side &side, const QString &code, quint64 file, QWidget *parent)
{
    auto screen = std::unique_ptr<frmRecibo>(new frmRecibo(parent));
    std::optional<EntryForm> found;
    if (!screen->loadRow(file, u"Recibo"_s, u"Este lançamento não existe mais."_s,
                         [&](Connection &connection) {
                             found = entry::load(connection, side, code);
                             return found.has_value();
                         }))
        return nullptr;
    screen->fill(receipt::of(side, *found, programclock::today()));
    return shown(std::move(screen));
}

void frmRecibo::fill(const Receipt &receipt)
{
    m_ui->txtpagamento->setText(receipt.payee);
    m_ui->txtrecibo->setText(receipt.payer);
    m_ui->txtreferente->setText(receipt.reference);
    m_ui->txtvalor->setText(receipt.amount);
    m_ui->txtvalor->setPrefix(u"R$ "_s); // shows the amount with it
    m_ui->txtdata->setText(receipt.date);
}

void frmRecibo::print()
{
    exportar::printPages(this, receipt::document(windowTitle(), {.payee = m_ui->txtpagamento->text(),
                                                                 .payer = m_ui->txtrecibo->text(),
                                                                 .reference = m_ui->txtreferente->text(),
                                                                 .amount = m_ui->txtvalor->text(),
                                                                 .date = m_ui->txtdata->dateText()}));
}
