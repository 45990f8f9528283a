#include "analysis/managementpane.h"
#include "ui_managementpane.h"

#include "data/status.h"
#include "entries/opencommands.h"
#include "lists/readrows.h"
#include "reports/listexportcommands.h"
#include "widgets/messages.h"
#include "widgets/reading.h"

using namespace Qt::StringLiterals;

ManagementPane::ManagementPane(const ManagementKind &kind, QWidget *parent)
    : QWidget(parent), m_ui(std::make_unique<Ui::ManagementPane>()), m_kind(kind)
{
    m_ui->setupUi(this);
    nameControls();
    m_ui->cboestatus->addItems(status::words());
    m_ui->lst->setTable(std::make_shared<StoredTable>(management::columns()));
    m_ui->lst->setEmptyText(u"Escolha os dados e clique em Consultar"_s);
    opencommands::openOnActivation(*m_ui->lst);
    connectControls();
}

ManagementPane::~ManagementPane() = default;

void ManagementPane::nameControls()
{
    const QString contact = m_kind.side.contactTitle.toLower();
    m_ui->optcontato->setText(u"Por "_s + u'&' + contact + u':');
    m_ui->cbocontato->setAccessibleName(m_kind.side.contactTitle);
    m_ui->optasc->setObjectName(m_kind.ascendingName);
    m_ui->optdesc->setObjectName(m_kind.descendingName);
    for (QWidget *control : std::initializer_list<QWidget *>{
             m_ui->opttodos, m_ui->optcontato, m_ui->optestatus, m_ui->optdata, m_ui->optconta,
             m_ui->cbocontato, m_ui->cboestatus, m_ui->txtinicial, m_ui->txtfinal, m_ui->cboconta,
             m_ui->cmdconsultar, m_ui->lst, m_ui->lbltotal, m_ui->cmdtxt, m_ui->cmdhtml, m_ui->cmdimprimir})
        control->setObjectName(control->objectName() + m_kind.suffix);
}

void ManagementPane::connectControls()
{
    // Who fills a field in wants to ask by it.
    for (const auto &[box, option] : {std::pair(m_ui->cbocontato, m_ui->optcontato),
                                      {m_ui->cboestatus, m_ui->optestatus},
                                      {m_ui->cboconta, m_ui->optconta}})
        connect(box, &QComboBox::activated, option, [option = option] { option->setChecked(true); });
    for (DateEdit *date : {m_ui->txtinicial, m_ui->txtfinal})
        connect(date, &QLineEdit::textEdited, this, [this] { m_ui->optdata->setChecked(true); });
    connect(m_ui->cmdconsultar, &QPushButton::clicked, this, &ManagementPane::ask);
    connectExports(this, {m_ui->cmdimprimir, m_ui->cmdtxt, m_ui->cmdhtml}, [this] { return report(); });
}

void ManagementPane::offer(Connection &connection)
{
    m_ui->cbocontato->addItems(
        readrows::names(connection, u"select * from "_s + m_kind.side.contacts.table, u"nome"_s));
    m_ui->cboconta->addItems(readrows::names(connection, u"select * from banco"_s, u"banco"_s));
}

ManagementFilter ManagementPane::filter() const
{
    using enum ManagementFilter::By;
    if (m_ui->optcontato->isChecked())
        return {.by = Contact, .name = m_ui->cbocontato->currentText()};
    if (m_ui->optestatus->isChecked())
        return {.by = Status, .name = m_ui->cboestatus->currentText()};
    if (m_ui->optdata->isChecked())
        return {.by = Dates, .first = m_ui->txtinicial->date(), .last = m_ui->txtfinal->date()};
    if (m_ui->optconta->isChecked())
        return {.by = Account, .name = m_ui->cboconta->currentText()};
    return {.by = Everything, .descending = m_ui->optdesc->isChecked()};
}

void ManagementPane::ask()
{
    const ManagementFilter wanted = filter();
    if (const std::optional<QString> problem = management::problem(wanted)) {
        messages::information(this, u"info"_s, *problem);
        return;
    }
    management::Result result;
    if (!reading::run(this, m_kind.side.loadingTitle, [&](Connection &connection, Progress &progress) {
            result = management::read(connection, m_kind, wanted, &progress);
        }))
        return;
    m_filterText = management::filterText(m_kind, wanted);
    m_ui->lst->setEmptyText(u"Nenhum dado encontrado"_s);
    m_ui->lst->setTable(result.table);
    m_ui->lbltotal->setText(management::totalText(result));
    if (result.table->rowCount() == 0)
        messages::information(this, u"Gerenciamento"_s, management::noneFound(m_kind, wanted));
}

Report ManagementPane::report() const
{
    return {.title = u"Gerenciamento"_s,
            .subtitle = m_kind.side.reportHeading,
            .filterText = m_filterText,
            .tables = {m_ui->lst->tableSource()},
            .statistics = m_ui->lbltotal->text()};
}
