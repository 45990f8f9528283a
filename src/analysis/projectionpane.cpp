#include "analysis/projectionpane.h"
#include "ui_projectionpane.h"

#include "data/clock.h"
#include "reports/exportcommands.h"
#include "widgets/reading.h"

using namespace Qt::StringLiterals;

ProjectionPane::ProjectionPane(const Side &side, QWidget *parent)
    : QWidget(parent), m_ui(std::make_unique<Ui::ProjectionPane>()), m_side(side)
{
    m_ui->setupUi(this);
    nameControls();
    m_ui->cbomes->addItems(projection::monthNames());
    m_ui->cbomes->setCurrentIndex(programclock::today().month() - 1);
    m_ui->cboano->addItems(projection::years());
    m_ui->cboano->setCurrentText(QString::number(programclock::today().year()));
    m_ui->txtvalor->setPrefix(u"R$ "_s);
    connect(m_ui->cmdcalcular, &QPushButton::clicked, this, &ProjectionPane::compute);
    connect(m_ui->cmdtxt, &QPushButton::clicked, this,
            [this] { save(u"txt"_s, u"Arquivos de Texto(*.txt)"_s, projection::writeText); });
    connect(m_ui->cmdhtml, &QPushButton::clicked, this,
            [this] { save(u"html"_s, u"Arquivos HTML (*.html)"_s, projection::writeHtml); });
    connect(m_ui->cmdimprimir, &QPushButton::clicked, this, [this] {
        withResult([this](const projection::Result &result) {
            exportar::print(window(), projection::printed(result), {.fontSize = 11});
        });
    });
}

ProjectionPane::~ProjectionPane() = default;

void ProjectionPane::nameControls()
{
    const QString suffix = m_side.projectionSuffix;
    setObjectName(u"painel"_s + suffix);
    for (QWidget *control : std::initializer_list<QWidget *>{m_ui->cbomes, m_ui->cboano, m_ui->txtvalor,
                                                             m_ui->lblestatus, m_ui->txtresultado})
        control->setObjectName(control->objectName() + suffix);
    m_ui->cmdcalcular->setObjectName(u"cmd"_s + suffix);
    if (m_side.subject == Subject::Payables)
        return; // the names of the first half's exports are the plain ones
    for (QWidget *control : std::initializer_list<QWidget *>{m_ui->cmdtxt, m_ui->cmdhtml, m_ui->cmdimprimir})
        control->setObjectName(control->objectName() + suffix);
}

bool ProjectionPane::compute()
{
    const int year = m_ui->cboano->currentText().toInt();
    const int month = m_ui->cbomes->currentIndex() + 1;
    const bool read =
        reading::run(window(), projection::title(m_side), [&](Connection &connection, Progress &) {
            m_result = projection::compute(connection, m_side, year, month, m_ui->txtvalor->text());
        });
    if (read) {
        m_ui->txtresultado->setPlainText(projection::summary(*m_result));
        m_ui->lblestatus->setText(projection::status(*m_result));
    }
    return read;
}

void ProjectionPane::withResult(const std::function<void(const projection::Result &)> &use)
{
    if (m_result || compute())
        use(*m_result);
}

void ProjectionPane::save(const QString &kind, const QString &filter,
                          void (*write)(QIODevice &, const projection::Result &))
{
    withResult([&](const projection::Result &result) {
        exportar::saveFile(
            window(), {u"Salvar projeções e metas de "_s + m_side.plural + u" em "_s + kind, filter, kind},
            [&](QIODevice &device, Progress *) { write(device, result); });
    });
}
