#include "entries/frmfincli.h"
#include "ui_frmfincli.h"

#include "entries/frmadicionar.h"
#include "reports/exportcommands.h"
#include "settings/database.h"
#include "widgets/boxes.h"
#include "widgets/listfeed.h"
#include "widgets/messages.h"

#include <QSignalBlocker>

#include <tuple>

using namespace Qt::StringLiterals;
using contacthistory::Shown;

frmFinCli::frmFinCli(const HistorySide &side, QWidget *parent)
    : Screen(parent, Qt::Dialog | Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint),
      m_ui(std::make_unique<Ui::frmFinCli>()),
      m_side(side)
{
    m_ui->setupUi(this);
    setObjectName(side.screenName);
    setWindowTitle(side.caption);
    prepare();
    m_ui->lblnome->setText(side.entries.contactTitle + u":"_s);
    m_ui->foto->hide();
    boxes::offerWhileTyping(m_ui->cbonome);
    m_feed = new ListFeed(*m_ui->lstdados, contacthistory::columns(), std::make_unique<FigureTotals>(),
                          side.waitTitle);
    m_ui->lstdados->setEmptyText(u"Escolha um nome e clique em Verificar"_s);
    connectControls();
}

frmFinCli::~frmFinCli() = default;

frmFinCli *frmFinCli::open(const HistorySide &side, QWidget *parent, const contacthistory::Contact &contact)
{
    auto *screen = raised<frmFinCli>(parent, side.screenName);
    if (!screen) {
        auto fresh = std::unique_ptr<frmFinCli>(new frmFinCli(side, parent));
        if (!fresh->fillNames())
            return nullptr;
        screen = shown(std::move(fresh));
    }
    if (!contact.code.isEmpty() || !contact.name.trimmed().isEmpty())
        screen->choose(contact);
    return screen;
}

void frmFinCli::connectControls()
{
    connect(m_ui->cbonome, &QComboBox::currentTextChanged, this, &frmFinCli::nameChosen);
    connect(m_ui->cmdverificar, &QPushButton::clicked, this, &frmFinCli::verify);
    connect(m_ui->cmdtxt, &QPushButton::clicked, this, [this] {
        exportar::saveText(this, report(m_side.heading),
                           {m_side.textTitle, u"Arquivos de Texto(*.txt)"_s, {}, {}});
    });
    connect(m_ui->cmdhtml, &QPushButton::clicked, this, [this] {
        exportar::saveHtml(this, report(m_side.htmlHeading),
                           {{}, {}, m_side.htmlTitle, u"Arquivos HTML(*.html)"_s});
    });
    connect(m_ui->cmdimprimir, &QPushButton::clicked, this,
            [this] { exportar::print(this, report(m_side.heading)); });
    connect(m_ui->cmdsair, &QPushButton::clicked, this, &QDialog::close);
    connect(m_ui->lstdados, &ListView::rowActivated, this, [this](int row) {
        frmAdicionar::openEdit(m_side.entries, QString::number(m_feed->key(row)), this, m_feed->serial());
    });
    connect(m_feed, &ListFeed::loaded, this, [this] {
        m_ui->lbltotal->setText(
            contacthistory::totals(m_side, static_cast<const FigureTotals &>(m_feed->totals()).figures));
    });
    connect(m_feed, &ListFeed::failed, this,
            [this](const Error &error) { messages::error(this, messages::generalPrefix, error); });
    connect(&Changes::instance(), &Changes::changed, this, [this](const Change &change) {
        if (change.subject == m_side.entries.subject && !m_contact.name.isEmpty())
            messages::guarded(this, messages::generalPrefix, [&] { m_feed->follow(change); });
        else if (change.subject == m_side.entries.contacts.subject)
            fillNames();
        else if (change.subject == Subject::Database && fillNames() && !m_contact.name.isEmpty())
            reload();
    });
}

bool frmFinCli::fillNames()
{
    return load([this](Connection &connection) {
        const auto contacts = contacthistory::contacts(connection, m_side);
        const QSignalBlocker blocker(m_ui->cbonome);
        const QString shown = m_ui->cbonome->currentText();
        m_ui->cbonome->clear();
        for (const auto &[name, code] : contacts)
            m_ui->cbonome->addItem(name, code);
        m_ui->cbonome->setCurrentIndex(m_ui->cbonome->findText(shown));
        m_ui->cbonome->setEditText(shown);
    });
}

void frmFinCli::choose(const contacthistory::Contact &contact)
{
    QComboBox &box = *m_ui->cbonome;
    box.setCurrentIndex(contact.code.isEmpty() ? box.findText(contact.name, Qt::MatchFixedString)
                                               : box.findData(contact.code));
    if (box.currentIndex() < 0) // entries keep the name of a contact that was removed
        box.setEditText(contact.name);
    verify();
}

void frmFinCli::nameChosen()
{
    const QString name = m_ui->cbonome->currentText();
    QString picture;
    if (m_ui->cbonome->findText(name, Qt::MatchFixedString) >= 0) // otherwise it is still being typed
        load([&](Connection &connection) { picture = contacthistory::picture(connection, m_side, name); });
    m_ui->foto->setFile(picture);
    m_ui->foto->setVisible(m_ui->foto->hasPicture());
}

void frmFinCli::verify()
{
    const QString name = m_ui->cbonome->currentText();
    if (name.trimmed().isEmpty()) {
        messages::exclamation(this, u"Erro"_s, m_side.noContact);
        m_ui->cbonome->setFocus();
        return;
    }
    const auto before = std::pair(m_contact, m_shown);
    m_contact = {name, chosenCode()};
    m_shown = shownStatus();
    if (reload())
        m_ui->lstdados->setEmptyText(u"Nenhum lançamento encontrado"_s);
    else
        std::tie(m_contact, m_shown) = before;
}

bool frmFinCli::reload()
{
    return messages::guarded(this, messages::generalPrefix, [this] {
        m_feed->load(contacthistory::query(m_side, m_contact.name, m_shown));
    });
}

/// Of several contacts with one name the one that was picked.
QString frmFinCli::chosenCode() const
{
    const QComboBox &box = *m_ui->cbonome;
    const bool picked = box.currentIndex() >= 0 && box.itemText(box.currentIndex()) == box.currentText();
    const int index = picked ? box.currentIndex() : box.findText(box.currentText(), Qt::MatchFixedString);
    return box.itemData(index).toString();
}

Shown frmFinCli::shownStatus() const
{
    if (m_ui->optpendente->isChecked())
        return Shown::Pending;
    return m_ui->optconcluido->isChecked() ? Shown::Settled : Shown::All;
}

Report frmFinCli::report(const QString &heading) const
{
    m_feed->finish();
    QStringList head;
    messages::guarded(m_ui->lstdados, messages::generalPrefix, [&] {
        if (!m_contact.code.isEmpty())
            head = contacthistory::details(*openDatabase(), m_side, m_contact.code);
    });
    head << contacthistory::statusLine(m_shown);
    const QString who = heading + m_contact.name;
    return {.title = m_side.reportTitle,
            .subtitle = who,
            .filterText = head.join(u'\n'),
            .tables = {m_ui->lstdados->tableSource()},
            .statistics = m_ui->lbltotal->text(),
            .textTitle = m_side.reportTitle + u"\n\n"_s + who + u'\n' + head.constLast(),
            .textStatistics = m_ui->lbltotal->text() + u'\n'};
}
