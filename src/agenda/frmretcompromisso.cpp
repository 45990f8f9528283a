#include "agenda/frmretcompromisso.h"
#include "ui_frmretcompromisso.h"

#include "data/clock.h"
#include "reports/listexportcommands.h"
#include "widgets/barprogress.h"
#include "widgets/reading.h"

using namespace Qt::StringLiterals;

frmRetCompromisso::frmRetCompromisso(QWidget *parent)
    : Screen(parent, Qt::Dialog | Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint),
      m_ui(std::make_unique<Ui::frmRetCompromisso>())
{
    m_ui->setupUi(this);
    prepare();
    m_ui->lstcompromisso->setEmptyText(u"Nenhum compromisso entre estas datas"_s);
    connectExports(
        this, {m_ui->imprimir, m_ui->txt, m_ui->html},
        [this] { return appointments::report(m_listing, m_ui->lstcompromisso->tableSource()); },
        exportTexts());
    connect(m_ui->fechar, &QAction::triggered, this, &QDialog::close);
}

frmRetCompromisso::~frmRetCompromisso() = default;

const ExportTexts &frmRetCompromisso::exportTexts()
{
    static const ExportTexts texts{u"Salvar lista de compromissos em txt"_s, u"Arquivos de Texto(*.txt)"_s,
                                   u"Salvar lista de compromissos em html"_s, u"Arquivos HTML(*.html)"_s};
    return texts;
}

frmRetCompromisso *frmRetCompromisso::open(const AppointmentDates &dates, QWidget *parent)
{
    auto screen = std::unique_ptr<frmRetCompromisso>(new frmRetCompromisso(parent));
    return screen->read(dates) ? shown(std::move(screen)) : nullptr;
}

bool frmRetCompromisso::read(const AppointmentDates &dates)
{
    if (!reading::run(place(), u"Carregando compromissos"_s, [&](Connection &connection, Progress &progress) {
            BarProgress both(*m_ui->barraprogresso, &progress);
            m_listing = appointments::read(connection, dates, programclock::today(), &both);
        }))
        return false;
    m_ui->lstcompromisso->setTable(m_listing.rows);
    m_ui->lbltopo->setText(m_listing.heading);
    return true;
}
