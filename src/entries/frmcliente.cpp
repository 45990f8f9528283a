#include "entries/frmcliente.h"
#include "ui_frmcliente.h"

#include "entries/frmcadcli.h"
#include "entries/frmfincli.h"
#include "reports/listexportcommands.h"
#include "settings/database.h"
#include "stock/frmconfetiqueta.h"
#include "widgets/listfeed.h"
#include "widgets/messages.h"

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
    m_feed = new ListFeed(*m_ui->lstcontato, contact::columns(side), std::make_unique<NoTotals>(),
                          side.listCaption);
    m_ui->lstcontato->setEmptyText(u"Nenhum cadastro encontrado"_s);
    m_ui->cbofiltro->addItems(contact::filterChoices(side));
    m_ui->cboordenar->addItems(contact::sortChoices(side));
    m_ui->cboordem->addItems(contact::directionChoices());

    for (QAction *action :
         {m_ui->novo, m_ui->editar, m_ui->remover, m_ui->financeiro, m_ui->mnuemail, m_ui->mnumaladireta})
        m_ui->lstcontato->addAction(action);
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
    connectExports(
        this, {m_ui->imprimir, m_ui->txt, m_ui->html}, [this] { return report(); }, exportTexts());
    connect(m_ui->financeiro, &QAction::triggered, this, &frmCliente::openHistory);
    connect(m_ui->mala, &QAction::triggered, this, &frmCliente::mergeMail);
    connect(m_ui->mnumaladireta, &QAction::triggered, this, &frmCliente::mergeMail);
    connect(m_ui->mnuemail, &QAction::triggered, this, &frmCliente::writeEmail);
    connect(m_ui->lstcontato, &ListView::rowActivated, m_ui->editar, &QAction::trigger);
    connect(m_ui->lstcontato, &ListView::insertRequested, m_ui->novo, &QAction::trigger);
    connect(m_ui->lstcontato, &ListView::removeRequested, m_ui->remover, &QAction::trigger);

    connect(m_ui->txtfiltro, &QLineEdit::textChanged, this, &frmCliente::refresh);
    connect(m_ui->cbofiltro, &QComboBox::currentTextChanged, this, [this] {
        if (!m_ui->txtfiltro->text().isEmpty())
            refresh();
    });
    for (const QComboBox *box : {m_ui->cboordenar, m_ui->cboordem})
        connect(box, &QComboBox::currentTextChanged, this, &frmCliente::refresh);
    connect(m_feed, &ListFeed::failed, this,
            [this](const Error &error) { messages::error(this, messages::generalPrefix, error); });
    connect(&Changes::instance(), &Changes::changed, this, [this](const Change &change) {
        if (change.subject == m_side.subject)
            messages::guarded(this, messages::generalPrefix, [&] { m_feed->follow(change); });
        else if (change.subject == Subject::Database)
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
    return messages::guarded(place(), messages::generalPrefix, [this] {
        m_feed->load(contact::query(m_side, filter()));
        m_ui->lbltopo->setText(contact::heading(m_side, filter()));
    });
}

QString frmCliente::selectedOrTell()
{
    const int row = m_ui->lstcontato->selectedRowOrTell(m_side.listCaption, m_side.selectMessage);
    return row < 0 ? QString() : QString::number(m_feed->key(row));
}

void frmCliente::editSelected()
{
    if (const QString code = selectedOrTell(); !code.isEmpty())
        frmCadCli::openEdit(m_side, code, this, m_feed->serial());
}

void frmCliente::removeSelected()
{
    const QString code = selectedOrTell();
    if (code.isEmpty() || !messages::confirmRemoval(this))
        return;
    const bool removed = messages::guarded(this, messages::generalPrefix, [&] {
        contact::remove(*openDatabase(m_feed->serial()), m_side, code);
    });
    if (!removed)
        refresh(); // the contact may be gone
}

void frmCliente::openHistory()
{
    if (const QString code = selectedOrTell(); !code.isEmpty())
        frmFinCli::open(historyOf(m_side), this, {.name = {}, .code = code});
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
    m_feed->finish();
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
