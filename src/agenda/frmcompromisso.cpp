#include "agenda/frmcompromisso.h"
#include "ui_frmcompromisso.h"

#include "agenda/frmcadcompromisso.h"
#include "agenda/frmretcompromisso.h"
#include "data/clock.h"
#include "reports/listexportcommands.h"
#include "widgets/messages.h"

using namespace Qt::StringLiterals;

frmCompromisso::frmCompromisso(QWidget *parent)
    : Screen(parent, Qt::Dialog | Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint),
      m_ui(std::make_unique<Ui::frmCompromisso>())
{
    m_ui->setupUi(this);
    prepare();
    m_ui->lstcompromisso->setEmptyText(u"Nenhum compromisso"_s);
    connectControls();
}

frmCompromisso::~frmCompromisso() = default;

frmCompromisso *frmCompromisso::open(QWidget *parent)
{
    if (auto *screen = raised<frmCompromisso>(parent, u"frmCompromisso"_s))
        return screen;
    auto screen = std::unique_ptr<frmCompromisso>(new frmCompromisso(parent));
    return screen->showDates({}) ? shown(std::move(screen)) : nullptr;
}

void frmCompromisso::connectControls()
{
    connect(m_ui->novo, &QAction::triggered, this, [this] { frmCadCompromisso::openNew(this); });
    connect(m_ui->editar, &QAction::triggered, this, &frmCompromisso::edit);
    connect(m_ui->remover, &QAction::triggered, this, &frmCompromisso::remove);
    for (QAction *action : {m_ui->novo, m_ui->editar, m_ui->remover})
        m_ui->lstcompromisso->addAction(action);
    m_ui->lstcompromisso->setContextMenuPolicy(Qt::ActionsContextMenu);
    connect(m_ui->lstcompromisso, &ListView::rowActivated, this, &frmCompromisso::edit);
    connect(m_ui->lstcompromisso, &ListView::insertRequested, m_ui->novo, &QAction::trigger);
    connect(m_ui->lstcompromisso, &ListView::removeRequested, this, &frmCompromisso::remove);
    connectExports(
        this, {m_ui->imprimir, m_ui->txt, m_ui->html},
        [this] { return appointments::report(m_listing, m_ui->lstcompromisso->tableSource()); },
        frmRetCompromisso::exportTexts());
    connect(m_ui->cmdfiltrar, &QPushButton::clicked, this, [this] {
        if (const auto dates = typedDates())
            showDates(dates);
    });
    connect(m_ui->cmdtodos, &QPushButton::clicked, this, [this] { showDates({}); });
    connect(m_ui->cmdresultado, &QPushButton::clicked, this, [this] {
        if (const auto dates = typedDates())
            frmRetCompromisso::open(*dates, this);
    });
    connect(m_ui->cmdsair, &QPushButton::clicked, this, &QDialog::close);
    connect(&Changes::instance(), &Changes::changed, this, [this](const Change &change) {
        if (change.subject == Subject::Appointments || change.subject == Subject::Database)
            showDates(m_dates);
    });
}

bool frmCompromisso::showDates(const std::optional<AppointmentDates> &dates)
{
    appointments::Listing fresh;
    if (!loadForChange([&](Connection &connection) {
            fresh = appointments::read(connection, dates, programclock::today());
        }))
        return false;
    m_dates = dates;
    m_listing = std::move(fresh);
    m_ui->lstcompromisso->setTable(m_listing.rows);
    m_ui->lbltopo->setText(m_listing.heading);
    return true;
}

std::optional<AppointmentDates> frmCompromisso::typedDates()
{
    const AppointmentDates dates{m_ui->cbodata1->date(), m_ui->cbodata2->date()};
    if (dates.from.isValid() && dates.to.isValid())
        return dates;
    messages::exclamation(this, u"Erro"_s, u"As datas devem ser preenchidas!"_s);
    (dates.from.isValid() ? m_ui->cbodata2 : m_ui->cbodata1)->setFocus();
    return std::nullopt;
}

QString frmCompromisso::selectedTitle()
{
    const int row =
        m_ui->lstcompromisso->selectedRowOrTell(u"Compromissos"_s, u"Selecione um compromisso na lista."_s);
    return row < 0 ? QString() : m_ui->lstcompromisso->cell(row, appointments::titleColumn);
}

void frmCompromisso::edit()
{
    if (const QString title = selectedTitle(); !title.isNull())
        frmCadCompromisso::openEdit(title, this, file());
}

void frmCompromisso::remove()
{
    const QString title = selectedTitle();
    if (title.isNull() || !messages::confirmRemoval(this))
        return;
    if (!write(messages::removePrefix,
               [&](Connection &connection) { appointments::remove(connection, title); }))
        showDates(m_dates); // it may be gone
}
