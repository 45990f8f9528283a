#include "entries/frmregulares.h"
#include "ui_frmregulares.h"

#include "data/changes.h"
#include "data/clock.h"
#include "entries/frmcadregular.h"
#include "widgets/messages.h"

#include <QHeaderView>

using namespace Qt::StringLiterals;

namespace {

const QString regularListTitle = u"Contas regulares"_s;

} // namespace

frmRegulares::frmRegulares(QWidget *parent)
    : Screen(parent, Qt::Dialog | Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint),
      m_ui(std::make_unique<Ui::frmRegulares>())
{
    m_ui->setupUi(this);
    prepare();
    m_ui->lstregulares->setEmptyText(
        u"Nenhuma conta regular. Inclua o aluguel, os salários, as assinaturas…"_s);
    connectControls();
}

frmRegulares::~frmRegulares() = default;

frmRegulares *frmRegulares::open(QWidget *parent)
{
    if (auto *screen = raised<frmRegulares>(parent, u"frmRegulares"_s))
        return screen;
    auto screen = std::unique_ptr<frmRegulares>(new frmRegulares(parent));
    return screen->refresh() ? shown(std::move(screen)) : nullptr;
}

void frmRegulares::connectControls()
{
    connect(m_ui->cmddespesa, &QPushButton::clicked, this,
            [this] { frmCadRegular::openNew(payable(), this); });
    connect(m_ui->cmdreceita, &QPushButton::clicked, this,
            [this] { frmCadRegular::openNew(receivable(), this); });
    connect(m_ui->cmdalterar, &QPushButton::clicked, this, &frmRegulares::edit);
    connect(m_ui->cmdremover, &QPushButton::clicked, this, &frmRegulares::remove);
    connect(m_ui->cmdsair, &QPushButton::clicked, this, &QDialog::close);
    connect(m_ui->lstregulares, &ListView::rowActivated, this, &frmRegulares::edit);
    connect(m_ui->lstregulares, &ListView::insertRequested, m_ui->cmddespesa, &QPushButton::click);
    connect(m_ui->lstregulares, &ListView::removeRequested, this, &frmRegulares::remove);
    connect(&Changes::instance(), &Changes::changed, this, [this](const Change &change) {
        if (change.subject == Subject::Regulars || change.subject == Subject::Database)
            refresh();
    });
}

bool frmRegulares::refresh()
{
    std::shared_ptr<StoredTable> rules;
    if (!loadForChange([&](Connection &connection) { rules = regular::list(connection); }))
        return false;
    m_ui->lstregulares->setTable(rules);
    m_ui->lstregulares->header()->setStretchLastSection(true);
    return true;
}

qint64 frmRegulares::selectedOrTell()
{
    const int row =
        m_ui->lstregulares->selectedRowOrTell(regularListTitle, u"Selecione uma conta regular na lista."_s);
    return row < 0 ? 0 : m_ui->lstregulares->cell(row, 0).toLongLong();
}

void frmRegulares::edit()
{
    if (const qint64 code = selectedOrTell())
        frmCadRegular::openEdit(code, this, file());
}

void frmRegulares::remove()
{
    const qint64 code = selectedOrTell();
    if (code == 0 || !messages::confirmRemoval(this))
        return;
    const QDate today = programclock::today();
    int pending = 0;
    if (!load([&](Connection &connection) { pending = regular::pendingFrom(connection, code, today); }))
        return;
    std::optional<QDate> from;
    if (pending > 0 &&
        messages::question(
            this, regularListTitle,
            u"Remover também as contas pendentes que ela já lançou, de hoje em diante (%1)?"_s.arg(pending)))
        from = today;
    if (!write(messages::removePrefix,
               [&](Connection &connection) { regular::remove(connection, code, from); }))
        refresh();
}
