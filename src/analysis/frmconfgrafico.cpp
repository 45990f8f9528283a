#include "analysis/frmconfgrafico.h"
#include "ui_frmconfgrafico.h"

#include "analysis/chartfilterpane.h"

using namespace Qt::StringLiterals;

namespace {

/// In the order of frmConfGrafico::Page.
const std::array<ChartPageKind, 4> &pages()
{
    static const std::array<ChartPageKind, 4> all{{
        {&payableFigures(), u"Contas a &pagar"_s, u"p"_s, u"cmdnatelap"_s, u"&Fornecedor:"_s,
         u"Ce&ntro de custo:"_s},
        {&receivableFigures(), u"Contas a &receber"_s, u"r"_s, u"cmdnatelar"_s, u"C&liente:"_s,
         u"Ce&ntro de lucro:"_s},
        {&bankFigures(), u"Movimento &bancário"_s, u"b"_s, u"cmdnatelab"_s, {}, {}},
        {nullptr, u"Despesas &x receitas"_s, u"d"_s, u"cmdgradr"_s, {}, {}},
    }};
    return all;
}

} // namespace

frmConfGrafico::frmConfGrafico(QWidget *parent) : Screen(parent), m_ui(std::make_unique<Ui::frmConfGrafico>())
{
    m_ui->setupUi(this);
    connect(m_ui->cmdsair, &QPushButton::clicked, this, &QDialog::close);
}

frmConfGrafico::~frmConfGrafico() = default;

frmConfGrafico *frmConfGrafico::open(Page page, QWidget *parent)
{
    auto screen = std::unique_ptr<frmConfGrafico>(new frmConfGrafico(parent));
    if (!screen->load([&](Connection &connection) {
            for (const ChartPageKind &kind : pages())
                screen->m_ui->xtab->addTab(
                    new ChartFilterPane(kind, ChartNames::read(connection, kind.kind), screen.get()),
                    kind.title);
        }))
        return nullptr;
    screen->m_ui->xtab->setCurrentIndex(page);
    setTabOrder(screen->previousInFocusChain(), screen->m_ui->cmdsair); // the tabs' fields come before it
    screen->m_ui->xtab->setFocus();
    screen->prepare();
    return shown(std::move(screen));
}
