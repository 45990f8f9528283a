#include "entries/frmcliente.h"
#include "ui_frmcliente.h"

#include "entries/frmcadcli.h"
#include "reports/exportcommands.h"
#include "stock/frmconfetiqueta.h"
#include "widgets/frmcarregando.h"
#include "widgets/messages.h"
#include "widgets/waittext.h"

#include <QDesktopServices>
#include <QToolBar>
#include <QUrl>

using namespace Qt::StringLiterals;

frmCliente::frmCliente(const ContactSide &side, QWidget *parent)
    : Screen(parent, Qt::Dialog | Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint),
      m_ui(std::make_unique<Ui::frmCliente>()),
      m_side(side)
{
    m_ui->setupUi(this);
    setObjectName(side.listName);
    setWindowTitle(side.listCaption);
    prepare();
    m_ui->lstcontato->setColumns(contact::columns(side));
    m_ui->lstcontato->setEmptyText(u"Nenhum cadastro encontrado"_s);
    m_ui->cbofiltro->addItems(contact::filterChoices(side));
    m_ui->cboordenar->addItems(contact::sortChoices(side));
    m_ui->cboordem->addItems(contact::directionChoices());

    for (QAction *action : {m_ui->novo, m_ui->editar, m_ui->remover, m_ui->mnuemail, m_ui->mnumaladireta})
        m_ui->lstcontato->addAction(action);
    for (QAction *action : m_ui->tbrbarra->actions())
        if (!action->isSeparator())
            m_ui->tbrbarra->widgetForAction(action)->setObjectName(action->objectName());
    connectCommands();
}

frmCliente::~frmCliente() = default;

frmCliente *frmCliente::open(const ContactSide &side, QWidget *parent)
{
    if (auto *screen = raised<frmCliente>(parent, side.listName))
        return screen;
    auto screen = std::unique_ptr<frmCliente>(new frmCliente(side, parent));
    return screen->refresh() ? shown(std::move(screen)) : nullptr;
}

void frmCliente::connectCommands()
{
    connect(m_ui->novo, &QAction::triggered, this,
            [this] { frmCadCli::openNew(m_side, m_side.newCaption, this); });
    connect(m_ui->editar, &QAction::triggered, this, &frmCliente::editSelected);
    connect(m_ui->remover, &QAction::triggered, this, &frmCliente::removeSelected);
    connect(m_ui->txt, &QAction::triggered, this,
            [this] { exportar::saveText(this, report(), exportTexts()); });
    connect(m_ui->html, &QAction::triggered, this,
            [this] { exportar::saveHtml(this, report(), exportTexts()); });
    connect(m_ui->imprimir, &QAction::triggered, this, [this] { exportar::print(this, report()); });
    connect(m_ui->mala, &QAction::triggered, this, &frmCliente::mergeMail);
    connect(m_ui->mnumaladireta, &QAction::triggered, this, &frmCliente::mergeMail);
    connect(m_ui->mnuemail, &QAction::triggered, this, &frmCliente::writeEmail);
    connect(m_ui->lstcontato, &ListView::rowActivated, m_ui->editar, &QAction::trigger);
    connect(m_ui->lstcontato, &ListView::removeRequested, m_ui->remover, &QAction::trigger);

    connect(m_ui->txtfiltro, &QLineEdit::textChanged, this, &frmCliente::refresh);
    connect(m_ui->cbofiltro, &QComboBox::currentTextChanged, this, [this] {
        if (!m_ui->txtfiltro->text().isEmpty())
            refresh();
    });
    for (const QComboBox *box : {m_ui->cboordenar, m_ui->cboordem})
        connect(box, &QComboBox::currentTextChanged, this, &frmCliente::refresh);
    connect(&Changes::instance(), &Changes::changed, this, [this](const Change &change) {
        if (change.subject == m_side.subject || change.subject == Subject::Database)
            refresh();
    });
}

ContactFilter frmCliente::filter() const
{
    return {m_ui->cbofiltro->currentText(), m_ui->txtfiltro->text(), m_ui->cboordenar->currentText(),
            m_ui->cboordem->currentText()};
}

bool frmCliente::refresh()
{
    return loadForChange([&](Connection &connection) {
        WaitProgress progress(place(), m_side.listCaption, listWaitText());
        m_ui->lstcontato->setRows(
            contact::rows(connection, m_side, contact::query(m_side, filter()), &progress));
        m_ui->lbltopo->setText(contact::heading(m_side, filter()));
    });
}

QString frmCliente::selectedOrTell()
{
    const int row = m_ui->lstcontato->selectedRowOrTell(m_side.listCaption, m_side.selectMessage);
    return row < 0 ? QString() : m_ui->lstcontato->cell(row, 0);
}

void frmCliente::editSelected()
{
    if (const QString code = selectedOrTell(); !code.isEmpty())
        frmCadCli::openEdit(m_side, code, this, file());
}

void frmCliente::removeSelected()
{
    const QString code = selectedOrTell();
    if (code.isEmpty() || !messages::confirmRemoval(this))
        return;
    if (!write(messages::generalPrefix,
               [&](Connection &connection) { contact::remove(connection, m_side, code); }))
        refresh(); // the contact may be gone
}

void frmCliente::writeEmail()
{
    if (selectedOrTell().isEmpty())
        return;
    const int row = m_ui->lstcontato->selectedRow();
    if (!QDesktopServices::openUrl(
            QUrl(u"mailto:"_s + m_ui->lstcontato->cell(row, contact::emailColumn(m_side)).trimmed())))
        messages::exclamation(this, m_side.listCaption,
                              u"Nenhum programa de e-mail foi encontrado neste computador."_s);
}

void frmCliente::mergeMail()
{
    frmConfEtiqueta::open(u"Select * from "_s + m_side.table, this);
}

Report frmCliente::report() const
{
    const bool filtered = !filter().text.isEmpty();
    return {.title = m_side.reportTitle,
            .subtitle = {},
            .filterText = filtered ? m_ui->lbltopo->text() : QString(),
            .tables = {m_ui->lstcontato->tableSource()},
            .lines = {},
            .statistics = m_side.totalWords + QString::number(m_ui->lstcontato->rowCount())};
}

ExportTexts frmCliente::exportTexts() const
{
    return {m_side.saveTextTitle, u"Arquivos de Texto(*.txt)"_s, m_side.saveHtmlTitle,
            u"Arquivos HTML(*.html)"_s};
}
