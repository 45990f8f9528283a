#include "stock/frmcadproduto.h"
#include "ui_frmcadproduto.h"

#include "stock/products.h"
#include "widgets/formkeys.h"
#include "widgets/messages.h"
#include "widgets/notes.h"

using namespace Qt::StringLiterals;

frmcadproduto::frmcadproduto(QWidget *parent) : Screen(parent), m_ui(std::make_unique<Ui::frmcadproduto>())
{
    m_ui->setupUi(this);
    prepare();
    formkeys::acceptQuantity(m_ui->txtqtde);
    connect(m_ui->cmdadicionar, &QPushButton::clicked, this, &frmcadproduto::save);
    connect(m_ui->cmdcancelar, &QPushButton::clicked, this, &QDialog::close);
}

frmcadproduto::~frmcadproduto() = default;

frmcadproduto *frmcadproduto::openNew(QWidget *parent)
{
    return shown(std::unique_ptr<frmcadproduto>(new frmcadproduto(parent)));
}

frmcadproduto *frmcadproduto::openEdit(const QString &name, QWidget *parent, quint64 listed)
{
    auto screen = std::unique_ptr<frmcadproduto>(new frmcadproduto(parent));
    std::optional<ProductForm> product;
    if (!screen->loadRow(listed, u"Produtos"_s, u"Este produto não existe mais."_s,
                         [&](Connection &connection) {
                             product = products::load(connection, name);
                             return product.has_value();
                         }))
        return nullptr;
    screen->setWindowTitle(u"Editar Produto"_s);
    screen->m_ui->cmdadicionar->setText(u"&Editar"_s);
    screen->m_ui->lblnome->setText(product->name);
    screen->m_ui->txtproduto->setText(product->name);
    screen->m_ui->txtqtde->setText(product->quantity);
    screen->m_ui->txtvalor->setText(product->cost);
    notes::show(screen->m_ui->txtinfo, product->notes);
    return shown(std::move(screen));
}

void frmcadproduto::save()
{
    const ProductForm form{m_ui->txtproduto->text(), m_ui->txtqtde->text(), m_ui->txtvalor->text(),
                           notes::text(m_ui->txtinfo)};
    if (const auto problem = products::problem(form)) {
        messages::critical(this, u"Erro"_s, *problem);
        m_ui->txtproduto->setFocus();
        return;
    }
    const QString edited = m_ui->lblnome->text();
    saveAndClose([&](Connection &connection) {
        if (edited.isEmpty())
            products::add(connection, form);
        else
            products::change(connection, edited, form);
    });
}
