#include "history/frmhistorico.h"
#include "ui_frmhistorico.h"

#include "data/changes.h"
#include "data/clock.h"
#include "history/steptexts.h"
#include "widgets/messages.h"

#include <QHeaderView>
#include <QSignalBlocker>

using namespace Qt::StringLiterals;

namespace {

constexpr int firstDays = 30; ///< that the screen shows at first
const QString everybody = u"Todos os usuários"_s;

} // namespace

frmHistorico::frmHistorico(QWidget *parent)
    : Screen(parent, Qt::Dialog | Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint),
      m_ui(std::make_unique<Ui::frmHistorico>())
{
    m_ui->setupUi(this);
    prepare();
    m_ui->cbodata1->setDate(programclock::today().addDays(-firstDays));
    m_ui->cbodata2->setDate(programclock::today());
    m_ui->cbousuario->addItem(everybody);
    m_ui->lsthistorico->setEmptyText(u"Nenhuma ação nestas datas"_s);
    m_ui->lstmudancas->setEmptyText(u"Selecione uma ação para ver o que ela mudou"_s);
    for (ListView *list : {m_ui->lsthistorico, m_ui->lstmudancas})
        list->header()->setStretchLastSection(true);
    connectControls();
}

frmHistorico::~frmHistorico() = default;

frmHistorico *frmHistorico::open(QWidget *parent)
{
    if (auto *screen = raised<frmHistorico>(parent, u"frmHistorico"_s))
        return screen;
    auto screen = std::unique_ptr<frmHistorico>(new frmHistorico(parent));
    return screen->refresh() ? shown(std::move(screen)) : nullptr;
}

void frmHistorico::connectControls()
{
    connect(m_ui->cmdfiltrar, &QPushButton::clicked, this, &frmHistorico::refresh);
    connect(m_ui->cbousuario, &QComboBox::activated, this, &frmHistorico::refresh);
    connect(m_ui->txtprocurar, &QLineEdit::editingFinished, this, &frmHistorico::refresh);
    connect(m_ui->lsthistorico->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &frmHistorico::showDetails);
    connect(m_ui->cmddesfazer, &QPushButton::clicked, this, [this] { run(undocommands::Direction::Back); });
    connect(m_ui->cmdrefazer, &QPushButton::clicked, this, [this] { run(undocommands::Direction::Again); });
    connect(m_ui->cmdsair, &QPushButton::clicked, this, &QDialog::close);
    connect(&Changes::instance(), &Changes::changed, this, &frmHistorico::refresh, Qt::QueuedConnection);
}

bool frmHistorico::refresh()
{
    const QString user = m_ui->cbousuario->currentText();
    HistoryFilter filter{m_ui->cbodata1->date(), m_ui->cbodata2->date(), user == everybody ? QString() : user,
                         m_ui->txtprocurar->text()};
    if (!filter.first.isValid() || !filter.last.isValid()) {
        messages::exclamation(this, u"Erro"_s, u"As datas devem ser preenchidas!"_s);
        return false;
    }
    historylist::Listing listing;
    if (!load([&](Connection &connection) { listing = historylist::read(connection, filter); }))
        return false;
    m_ui->lsthistorico->setTable(listing.rows);
    m_ui->lbltotal->setText(listing.heading);
    const QSignalBlocker blocker(m_ui->cbousuario);
    m_ui->cbousuario->clear();
    m_ui->cbousuario->addItems(QStringList{everybody} + listing.users);
    m_ui->cbousuario->setCurrentText(user);
    showDetails();
    return true;
}

qint64 frmHistorico::selectedStep() const
{
    const int row = m_ui->lsthistorico->selectedRow();
    return row < 0 ? 0 : m_ui->lsthistorico->cell(row, 0).toLongLong();
}

void frmHistorico::showDetails()
{
    std::vector<RecordedRow> rows;
    journal::Step step;
    load([&, number = selectedStep()](Connection &connection) {
        step = journal::step(connection, number);
        rows = journal::rows(connection, number);
    });
    m_ui->lstmudancas->setTable(steptexts::details(rows));
    const bool isDeed = step.number != 0 && step.kind == journal::Kind::Done;
    m_ui->cmddesfazer->setEnabled(isDeed && !step.isUndone);
    m_ui->cmdrefazer->setEnabled(isDeed && step.isUndone);
}

void frmHistorico::run(undocommands::Direction direction)
{
    if (undocommands::run(this, direction, selectedStep()))
        refresh();
}
