#include "stock/frmcadproduto.h"
#include "ui_frmcadproduto.h"

#include "data/changes.h"
#include "settings/database.h"
#include "stock/products.h"
#include "widgets/background.h"
#include "widgets/formkeys.h"
#include "widgets/messages.h"

using namespace Qt::StringLiterals;

frmcadproduto::frmcadproduto(QWidget *parent) : QDialog(parent), m_ui(std::make_unique<Ui::frmcadproduto>())
{
    m_ui->setupUi(this);
    setAttribute(Qt::WA_DeleteOnClose);
    background::apply(this);
    formkeys::enterMovesOn(this);
    formkeys::acceptQuantity(m_ui->txtqtde);
    formkeys::modalOverDialog(this);
    connect(m_ui->cmdadicionar, &QPushButton::clicked, this, &frmcadproduto::save);
    connect(m_ui->cmdcancelar, &QPushButton::clicked, this, &QDialog::close);
}

frmcadproduto::~frmcadproduto() = default;

frmcadproduto *frmcadproduto::openNew(QWidget *parent)
{
    auto *screen = new frmcadproduto(parent);
    screen->show();
    return screen;
}

frmcadproduto *frmcadproduto::openEdit(const QString &name, QWidget *parent)
{
    std::optional<ProductForm> product;
    if (!messages::guarded(parent, messages::generalPrefix,
                           [&] { product = products::load(*openDatabase(), name); }))
        return nullptr;
    if (!product) {
        messages::information(parent, u"Produtos"_s, u"Este produto não existe mais."_s);
        return nullptr;
    }
    auto *screen = new frmcadproduto(parent);
    screen->setWindowTitle(u"Editar Produto"_s);
    screen->m_ui->cmdadicionar->setText(u"&Editar"_s);
    screen->m_ui->lblnome->setText(product->name);
    screen->m_ui->txtproduto->setText(product->name);
    screen->m_ui->txtqtde->setText(product->quantity);
    screen->m_ui->txtvalor->setText(product->cost);
    screen->m_ui->txtinfo->setPlainText(product->notes);
    screen->show();
    return screen;
}

void frmcadproduto::save()
{
    const ProductForm form{m_ui->txtproduto->text(), m_ui->txtqtde->text(), m_ui->txtvalor->text(),
                           m_ui->txtinfo->toPlainText()};
    if (const auto problem = products::problem(form)) {
        messages::critical(this, u"Erro"_s, *problem);
        m_ui->txtproduto->setFocus();
        return;
    }
    const QString edited = m_ui->lblnome->text();
    const bool saved = messages::guarded(this, messages::savePrefix, [&] {
        const std::shared_ptr<Connection> database = openDatabase();
        Connection &connection = *database;
        if (edited.isEmpty())
            products::add(connection, form);
        else
            products::change(connection, edited, form);
    });
    if (!saved)
        return;
    close();
    Changes::announce(Subject::Products);
}
