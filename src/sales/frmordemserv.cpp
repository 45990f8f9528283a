#include "sales/frmordemserv.h"
#include "ui_frmordemserv.h"

#include "data/clock.h"
#include "lists/readrows.h"
#include "reports/exportcommands.h"
#include "sales/frmcadprodorc.h"
#include "sales/frmcadservord.h"
#include "widgets/boxes.h"

using namespace Qt::StringLiterals;

frmOrdemServ::frmOrdemServ(QWidget *parent)
    : Screen(parent, Qt::Dialog | Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint),
      m_ui(std::make_unique<Ui::frmOrdemServ>())
{
    m_ui->setupUi(this);
    prepare();
    m_ui->lstprodutos->setEmptyText(u"Nenhum produto"_s);
    m_ui->lstservicos->setEmptyText(u"Nenhum serviço"_s);
    showLines();
    connectControls();
}

frmOrdemServ::~frmOrdemServ() = default;

frmOrdemServ *frmOrdemServ::open(QWidget *parent)
{
    auto screen = std::unique_ptr<frmOrdemServ>(new frmOrdemServ(parent));
    return screen->suggestNames() ? shown(std::move(screen)) : nullptr;
}

void frmOrdemServ::connectControls()
{
    connect(m_ui->cmdadpro, &QPushButton::clicked, this, [this] {
        frmCadProdOrc::open(m_products, this, [this](const ServiceOrder::Product &product) {
            m_order.products.push_back(product);
            showLines();
        });
    });
    connect(m_ui->cmdadserv, &QPushButton::clicked, this, [this] {
        frmCadServOrd::open(this, [this](const ServiceOrder::Service &service) {
            m_order.services.push_back(service);
            showLines();
        });
    });
    const auto removeSelected = [this](ListView *list, auto &lines) {
        if (const int row = selectedOrTell(list); row >= 0)
            lines.erase(lines.begin() + list->table().heldRow(row));
        showLines();
    };
    const auto clear = [this](auto &lines) {
        lines.clear();
        showLines();
    };
    const auto removeProduct = [=, this] { removeSelected(m_ui->lstprodutos, m_order.products); };
    const auto removeService = [=, this] { removeSelected(m_ui->lstservicos, m_order.services); };
    connect(m_ui->cmdrempro, &QPushButton::clicked, this, removeProduct);
    connect(m_ui->lstprodutos, &ListView::removeRequested, this, removeProduct);
    connect(m_ui->cmdremserv, &QPushButton::clicked, this, removeService);
    connect(m_ui->lstservicos, &ListView::removeRequested, this, removeService);
    connect(m_ui->cmdprodtudo, &QPushButton::clicked, this, [=, this] { clear(m_order.products); });
    connect(m_ui->cmd, &QPushButton::clicked, this, [=, this] { clear(m_order.services); });
    connect(m_ui->cmdimprimir, &QPushButton::clicked, this, &frmOrdemServ::print);
    connect(m_ui->cmdsair, &QPushButton::clicked, this, &QDialog::close);
}

bool frmOrdemServ::suggestNames()
{
    return load([this](Connection &connection) {
        m_products = readrows::names(connection, u"select * from produto"_s, u"produto"_s);
        boxes::suggest(m_ui->txtcliente, readrows::names(connection, u"select * from cliente"_s, u"nome"_s));
    });
}

void frmOrdemServ::showLines()
{
    m_ui->lstprodutos->setTable(std::make_shared<StoredTable>(serviceorder::rows(m_order.products)));
    m_ui->lstservicos->setTable(std::make_shared<StoredTable>(serviceorder::rows(m_order.services)));
}

int frmOrdemServ::selectedOrTell(ListView *list)
{
    return list->selectedRowOrTell(windowTitle(), u"Selecione uma linha na lista."_s);
}

void frmOrdemServ::print()
{
    ServiceOrder order = m_order;
    order.client = m_ui->txtcliente->text();
    order.phone = m_ui->txttelefone->text();
    exportar::printPages(this, serviceorder::document(order, programclock::today()));
}
