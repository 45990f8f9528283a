#include "analysis/frmprocurar.h"
#include "ui_frmprocurar.h"

#include "agenda/frmcadcompromisso.h"
#include "analysis/globalsearch.h"
#include "bank/frmmovimentobanc.h"
#include "entries/frmadicionar.h"
#include "entries/frmcadcli.h"
#include "settings/database.h"
#include "stock/frmcadproduto.h"
#include "widgets/messages.h"

#include <QHeaderView>

using namespace Qt::StringLiterals;

namespace {

const QString searchTitle = u"Procurar em tudo"_s;

} // namespace

frmProcurar::frmProcurar(QWidget *parent)
    : Screen(parent, Qt::Dialog | Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint),
      m_ui(std::make_unique<Ui::frmProcurar>()),
      m_work(this)
{
    m_ui->setupUi(this);
    prepare();
    m_ui->lstachados->setEmptyText(u"Digite uma ou mais palavras, um valor ou uma data"_s);
    connect(m_ui->cmdprocurar, &QPushButton::clicked, this, &frmProcurar::search);
    connect(m_ui->txtprocurar, &QLineEdit::editingFinished, this, [this] { // Enter moves on
        if (m_ui->txtprocurar->text() != m_searched)
            search();
    });
    connect(m_ui->lstachados, &ListView::rowActivated, this, &frmProcurar::openRow);
    connect(m_ui->cmdabrir, &QPushButton::clicked, this, [this] {
        const int row = m_ui->lstachados->selectedRowOrTell(searchTitle, u"Selecione uma linha na lista."_s);
        if (row >= 0)
            openRow(row);
    });
    connect(m_ui->cmdsair, &QPushButton::clicked, this, &QDialog::close);
}

frmProcurar::~frmProcurar() = default;

frmProcurar *frmProcurar::open(QWidget *parent, const QString &text)
{
    frmProcurar *screen = raised<frmProcurar>(parent, u"frmProcurar"_s);
    if (!screen)
        screen = shown(std::unique_ptr<frmProcurar>(new frmProcurar(parent)));
    if (!text.trimmed().isEmpty()) {
        screen->m_ui->txtprocurar->setText(text);
        screen->search();
    }
    return screen;
}

void frmProcurar::search()
{
    m_searched = m_ui->txtprocurar->text();
    messages::guarded(this, messages::generalPrefix, [this] {
        const auto search = std::make_shared<GlobalSearch>(openDatabase(), m_searched);
        m_ui->lbltotal->setText(u"Procurando…"_s);
        m_work.start(
            {.title = searchTitle,
             .text = u"Por favor aguarde enquanto o software procura nos dados."_s,
             .run = [search](const QDeadlineTimer &until) { return search->run(until); },
             .interrupted = {},
             .done = [this, search] { showFound(*search); },
             .failed = [this](const Error &error) { messages::error(this, messages::generalPrefix, error); },
             .total = [search] { return search->rowsInAll(); },
             .progress = [search] { return search->rowsRead(); }});
    });
}

void frmProcurar::showFound(const GlobalSearch &search)
{
    const int count = search.result()->rowCount();
    m_ui->lstachados->setEmptyText(u"Nada foi encontrado com todas estas palavras"_s);
    m_ui->lstachados->setTable(search.result());
    m_ui->lstachados->header()->setStretchLastSection(true);
    m_ui->lbltotal->setText((count == 1 ? u"1 encontrado"_s : u"%1 encontrados"_s.arg(count)) +
                            (search.isCut() ? u"; há mais: digite outras palavras"_s : QString()));
}

/// Each kind has a screen of its own; what is known by its name is in the third column.
void frmProcurar::openRow(int row)
{
    const auto origin = m_ui->lstachados->origin(row);
    if (!origin)
        return;
    const QString key = QString::number(origin->key), name = m_ui->lstachados->cell(row, 2);
    switch (origin->subject) {
    case Subject::Payables:
    case Subject::Receivables:
        frmAdicionar::openEdit(origin->subject == Subject::Payables ? payable() : receivable(), key, this,
                               origin->file);
        break;
    case Subject::Movements:
        frmmovimentobanc::openEdit(origin->key, this, origin->file);
        break;
    case Subject::Clients:
    case Subject::Suppliers:
        frmCadCli::openEdit(origin->subject == Subject::Clients ? clients() : suppliers(), key, this,
                            origin->file);
        break;
    case Subject::Products:
        frmcadproduto::openEdit(name, this, origin->file);
        break;
    default:
        frmCadCompromisso::openEdit(name, this, origin->file);
    }
}
