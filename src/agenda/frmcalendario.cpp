#include "agenda/frmcalendario.h"
#include "ui_frmcalendario.h"

#include "agenda/appointments.h"
#include "agenda/frmcadcompromisso.h"
#include "data/clock.h"
#include "data/dates.h"

#include <QTextCharFormat>

using namespace Qt::StringLiterals;

frmCalendario::frmCalendario(QWidget *parent)
    : Screen(parent, Qt::Dialog | Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint),
      m_ui(std::make_unique<Ui::frmCalendario>())
{
    m_ui->setupUi(this);
    prepare();
    m_ui->calendario->setSelectedDate(programclock::today());
    m_ui->lstcompromisso->setEmptyText(u"Nenhum compromisso neste dia"_s);
    connect(m_ui->calendario, &QCalendarWidget::selectionChanged, this, &frmCalendario::read);
    connect(m_ui->calendario, &QCalendarWidget::currentPageChanged, this, &frmCalendario::read);
    connect(m_ui->lstcompromisso, &ListView::rowActivated, this, &frmCalendario::editSelected);
    connect(m_ui->cmdnovo, &QPushButton::clicked, this,
            [this] { frmCadCompromisso::openNew(this, m_ui->calendario->selectedDate()); });
    connect(m_ui->cmdhoje, &QPushButton::clicked, this,
            [this] { m_ui->calendario->setSelectedDate(programclock::today()); });
    connect(m_ui->cmdsair, &QPushButton::clicked, this, &QDialog::close);
    connect(&Changes::instance(), &Changes::changed, this, [this](const Change &change) {
        if (change.subject == Subject::Appointments || change.subject == Subject::Database)
            read();
    });
}

frmCalendario::~frmCalendario() = default;

frmCalendario *frmCalendario::open(QWidget *parent)
{
    if (auto *screen = raised<frmCalendario>(parent, u"frmCalendario"_s))
        return screen;
    auto screen = std::unique_ptr<frmCalendario>(new frmCalendario(parent));
    return screen->read() ? shown(std::move(screen)) : nullptr;
}

/// The days of the page that is shown, and the rows of the day that is chosen.
bool frmCalendario::read()
{
    QCalendarWidget &calendar = *m_ui->calendario;
    const QDate first(calendar.yearShown(), calendar.monthShown(), 1), day = calendar.selectedDate();
    appointments::Listing chosen;
    QSet<QDate> marked;
    if (!loadForChange([&](Connection &connection) {
            const QDate today = programclock::today();
            chosen = appointments::read(connection, AppointmentDates{day, day}, today);
            marked = appointments::days(connection, {first.addDays(-7), first.addMonths(1).addDays(14)});
        }))
        return false;
    for (const QDate old : std::exchange(m_marked, marked))
        calendar.setDateTextFormat(old, {});
    QTextCharFormat bold;
    bold.setFontWeight(QFont::Bold);
    bold.setFontUnderline(true);
    for (const QDate date : m_marked)
        calendar.setDateTextFormat(date, bold);
    m_ui->lbldia->setText(dates::longDate(day));
    m_ui->lstcompromisso->setTable(chosen.rows);
    return true;
}

void frmCalendario::editSelected(int row)
{
    frmCadCompromisso::openEdit(m_ui->lstcompromisso->cell(row, appointments::titleColumn), this, file());
}
