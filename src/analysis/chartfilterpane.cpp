#include "analysis/chartfilterpane.h"
#include "ui_chartfilterpane.h"

#include "analysis/frmgrafico.h"
#include "data/dates.h"
#include "data/status.h"
#include "lists/readrows.h"
#include "widgets/messages.h"
#include "widgets/reading.h"

using namespace Qt::StringLiterals;

namespace {

/// A first item for all, which adds no condition, and the names.
void fill(QComboBox *box, const QString &all, const QStringList &names)
{
    box->addItem(all, QString());
    for (const QString &name : names)
        box->addItem(name, name);
}

QString chosen(const QComboBox *box)
{
    return box->currentData().toString();
}

} // namespace

ChartNames ChartNames::read(Connection &connection, const FigureKind *kind)
{
    ChartNames names;
    names.accounts = readrows::names(connection, u"select * from banco"_s, u"banco"_s);
    if (!kind || !kind->side)
        return names;
    const Side &side = *kind->side;
    names.contacts = readrows::names(connection, u"select * from "_s + side.contacts.table, u"nome"_s);
    names.centres = readrows::names(connection, u"Select * from "_s + side.centres.table, u"descricao"_s);
    return names;
}

ChartFilterPane::ChartFilterPane(const ChartPageKind &page, const ChartNames &names, QWidget *parent)
    : QWidget(parent), m_ui(std::make_unique<Ui::ChartFilterPane>()), m_page(page)
{
    m_ui->setupUi(this);
    const bool isSide = page.kind && page.kind->side, isBank = page.kind && !page.kind->side;
    for (QWidget *control : std::initializer_list<QWidget *>{m_ui->lblcontato, m_ui->cbocontato,
                                                             m_ui->lblcentro, m_ui->cbocentro})
        control->setVisible(isSide);
    for (QWidget *control : std::initializer_list<QWidget *>{m_ui->lbldestino, m_ui->cbodestino})
        control->setVisible(isBank);
    m_ui->lblcontato->setText(page.contactLabel);
    m_ui->lblcentro->setText(page.centreLabel);
    fill(m_ui->cboestatus, u"Pendentes e Concluídos"_s, status::words());
    fill(m_ui->cboconta, u"Todas as contas"_s, names.accounts);
    fill(m_ui->cbodestino, u"Todas as contas"_s, names.accounts);
    fill(m_ui->cbocontato, u"Todos"_s, names.contacts);
    fill(m_ui->cbocentro, u"Todos"_s, names.centres);
    for (QWidget *control : std::initializer_list<QWidget *>{
             m_ui->chkdata, m_ui->txtinicial, m_ui->txtfinal, m_ui->cboestatus, m_ui->cboconta,
             m_ui->cbodestino, m_ui->cbocontato, m_ui->cbocentro})
        control->setObjectName(control->objectName() + page.suffix);
    m_ui->cmdnatela->setObjectName(page.command);
    for (DateEdit *date : {m_ui->txtinicial, m_ui->txtfinal})
        connect(date, &QLineEdit::textEdited, this, [this] { m_ui->chkdata->setChecked(true); });
    connect(m_ui->cmdnatela, &QPushButton::clicked, this, &ChartFilterPane::showChart);
}

ChartFilterPane::~ChartFilterPane() = default;

ChartFilter ChartFilterPane::filter() const
{
    return {.byDate = m_ui->chkdata->isChecked(),
            .first = dates::stored(m_ui->txtinicial->date()),
            .last = dates::stored(m_ui->txtfinal->date()),
            .status = chosen(m_ui->cboestatus),
            .account = chosen(m_ui->cboconta),
            .contact = chosen(m_ui->cbocontato),
            .centre = chosen(m_ui->cbocentro),
            .destination = chosen(m_ui->cbodestino)};
}

void ChartFilterPane::showChart()
{
    const ChartFilter wanted = filter();
    if (const std::optional<QString> problem = chartquery::problem(wanted)) {
        messages::exclamation(this, u"Erro"_s, *problem);
        return;
    }
    std::optional<ChartData> chart;
    const FigureKind *kind = m_page.kind;
    if (!reading::run(this, u"Carregando gráfico"_s, [&](Connection &connection, Progress &progress) {
            chart = kind ? chartquery::chart(connection, *kind, wanted, &progress)
                         : chartquery::bothSides(connection, wanted, &progress);
        }))
        return;
    if (chart)
        frmGrafico::open(*std::move(chart), window());
    else
        messages::information(this, u"Info"_s, kind ? kind->noneFound : payableFigures().noneFound);
}
