#include "sales/frmestoque.h"
#include "ui_frmestoque.h"

#include "reports/listexportcommands.h"
#include "sales/stocklistpane.h"
#include "stock/frmcadproduto.h"
#include "stock/products.h"
#include "widgets/messages.h"

#include <QAction>

using namespace Qt::StringLiterals;

frmestoque::frmestoque(QWidget *parent) : Screen(parent), m_ui(std::make_unique<Ui::frmestoque>())
{
    m_ui->setupUi(this);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    prepare();
    m_ui->lstprodutos->setColumns(products::columns());
    m_ui->lstprodutos->setEmptyText(u"Nenhum produto cadastrado"_s);
    m_ui->lblprodutoest->setText(ProductList().summary());

    m_sales = new StockListPane(sales(), {u"cbofiltror"_s, u"cbotipor"_s, u"cboprodutor"_s, u"cbocliente"_s,
                                          u"lstreceber"_s, u"lblreceberest"_s, u"Clie&nte:"_s});
    m_purchases =
        new StockListPane(purchases(), {u"cbofiltrop"_s, u"cbotipop"_s, u"cboprodutop"_s, u"cbofornecedor"_s,
                                        u"lstpagar"_s, u"lblpagarest"_s, u"Fo&rnecedor:"_s});
    for (StockListPane *list : {m_sales, m_purchases})
        m_ui->tabestoque->addTab(list, u'&' + list->kind().title);
    connectControls();
}

frmestoque::~frmestoque() = default;

frmestoque *frmestoque::open(QWidget *parent)
{
    auto *screen = parent ? parent->findChild<frmestoque *>() : nullptr;
    if (!screen || !screen->isVisible()) {
        screen = new frmestoque(parent);
        screen->show();
        screen->loadProducts();
        screen->m_sales->reload();
        screen->m_purchases->reload();
    }
    screen->raise();
    screen->activateWindow();
    return screen;
}

void frmestoque::connectControls()
{
    connect(m_ui->cmdnovoproduto, &QPushButton::clicked, this, [this] { frmcadproduto::openNew(this); });
    connect(m_ui->cmdalterarproduto, &QPushButton::clicked, this, &frmestoque::editSelected);
    connect(m_ui->cmdremoverproduto, &QPushButton::clicked, this, &frmestoque::removeSelected);
    connect(m_ui->lstprodutos, &ListView::insertRequested, m_ui->cmdnovoproduto, &QPushButton::click);
    connect(m_ui->lstprodutos, &ListView::removeRequested, this, &frmestoque::removeSelected);
    connect(m_ui->lstprodutos, &ListView::rowActivated, this, &frmestoque::editSelected);
    m_ui->lstprodutos->setContextMenuPolicy(Qt::ActionsContextMenu);
    for (QPushButton *button : {m_ui->cmdnovoproduto, m_ui->cmdalterarproduto, m_ui->cmdremoverproduto}) {
        auto *command = new QAction(button->icon(), button->text(), m_ui->lstprodutos);
        connect(command, &QAction::triggered, button, &QPushButton::click);
        m_ui->lstprodutos->addAction(command);
    }
    connectExports(this, {m_ui->cmdimprimir, m_ui->cmdtxt, m_ui->cmdhtml}, [this] { return report(); });
    connect(m_ui->cmdfechar, &QPushButton::clicked, this, &QDialog::close);
    connect(&Changes::instance(), &Changes::changed, this, &frmestoque::dataChanged);
}

void frmestoque::loadProducts()
{
    loadForChange([this](Connection &connection) {
        ProductList products = products::list(connection);
        m_ui->lblprodutoest->setText(products.summary());
        m_ui->lstprodutos->setRows(std::move(products.rows));
    });
}

void frmestoque::dataChanged(const Change &change)
{
    const Subject subject = change.subject;
    for (StockListPane *list : {m_sales, m_purchases})
        if (subject == list->kind().side.subject || subject == Subject::Database)
            list->follow(change);
    if (subject != Subject::Receivables && subject != Subject::Payables && subject != Subject::Products &&
        subject != Subject::Database)
        return;
    loadProducts(); // entries move the stock, too
}

QString frmestoque::selectedOrTell()
{
    const int row = m_ui->lstprodutos->selectedRowOrTell(u"Produtos"_s, u"Selecione um produto na lista."_s);
    return row < 0 ? QString() : m_ui->lstprodutos->cell(row, 0);
}

void frmestoque::editSelected()
{
    const QString name = selectedOrTell();
    if (!name.isEmpty())
        frmcadproduto::openEdit(name, this, file());
}

void frmestoque::removeSelected()
{
    const QString name = selectedOrTell();
    if (name.isEmpty())
        return;
    if (!write(messages::removePrefix, [&](Connection &connection) { products::remove(connection, name); }))
        loadProducts(); // the product may be gone
}

Report frmestoque::report()
{
    Report report;
    report.title = windowTitle();
    auto *filtered = qobject_cast<StockListPane *>(m_ui->tabestoque->currentWidget());
    if (filtered) {
        filtered->feed().finish();
        report.subtitle = filtered->kind().title;
        report.filterText = filtered->filterText();
        report.tables = {filtered->list().tableSource()};
        report.statistics = filtered->totals();
    } else {
        report.subtitle = u"Produtos"_s;
        report.tables = {m_ui->lstprodutos->tableSource()};
        report.statistics = m_ui->lblprodutoest->text();
    }
    return report;
}
