#include "entries/frmcentrocusto.h"
#include "ui_frmcentrocusto.h"

#include "reports/listexportcommands.h"
#include "widgets/messages.h"

#include <QHeaderView>
#include <QInputDialog>

using namespace Qt::StringLiterals;

namespace {

const ExportTexts &exportTexts()
{
    static const ExportTexts texts{u"Salvar resumo em txt"_s, u"Arquivos de texto (*.txt)"_s,
                                   u"Salvar resumo em html"_s, u"Arquivos HTML (*.html)"_s};
    return texts;
}

} // namespace

frmCentroCusto::frmCentroCusto(const CentreSide &side, QWidget *parent)
    : Screen(parent), m_ui(std::make_unique<Ui::frmCentroCusto>()), m_side(side)
{
    m_ui->setupUi(this);
    setObjectName(side.screenName);
    setWindowTitle(side.caption);
    prepare();
    m_ui->lstcentro->setColumns({{u"descricao"_s, side.caption, CellKind::Text, 400}});
    m_ui->lstcentro->setEmptyText(u"Nenhum nome cadastrado"_s);
    m_ui->lstresumo->setColumns(centres::columns(side));
    for (ListView *list : {m_ui->lstcentro, m_ui->lstresumo})
        list->header()->setStretchLastSection(true);
    m_ui->txtnome->setFocus();
}

frmCentroCusto::~frmCentroCusto() = default;

frmCentroCusto *frmCentroCusto::openFor(const CentreSide &side, QWidget *parent)
{
    if (auto *screen = raised<frmCentroCusto>(parent, side.screenName))
        return screen;
    auto screen = std::unique_ptr<frmCentroCusto>(new frmCentroCusto(side, parent));
    if (!screen->reloadList())
        return nullptr;
    screen->connectControls();
    return shown(std::move(screen));
}

void frmCentroCusto::connectControls()
{
    connect(m_ui->cmdcad, &QPushButton::clicked, this, &frmCentroCusto::add);
    connect(m_ui->cmdeditar, &QPushButton::clicked, this, &frmCentroCusto::rename);
    connect(m_ui->cmdremover, &QPushButton::clicked, this, &frmCentroCusto::remove);
    connect(m_ui->lstcentro, &ListView::rowActivated, this, &frmCentroCusto::rename);
    connect(m_ui->lstcentro, &ListView::insertRequested, m_ui->txtnome, qOverload<>(&QWidget::setFocus));
    connect(m_ui->lstcentro, &ListView::removeRequested, this, &frmCentroCusto::remove);
    connect(m_ui->lstcentro->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &frmCentroCusto::allowCommands);
    connect(m_ui->xtab, &QTabWidget::currentChanged, this, &frmCentroCusto::showSummary);
    connectExports(
        this, {m_ui->cmdimprimir, m_ui->cmdtxt, m_ui->cmdhtml},
        [this] { return centres::report(m_side, m_summary); }, exportTexts());
    connect(m_ui->cmdsair, &QPushButton::clicked, this, &QDialog::close);
    connect(&Changes::instance(), &Changes::changed, this, &frmCentroCusto::refresh);
}

bool frmCentroCusto::reloadList()
{
    const bool loaded = loadForChange([this](Connection &connection) {
        RowStore rows(1);
        for (const QString &name : centres::names(connection, m_side))
            rows.append({name.toStdString()});
        m_ui->lstcentro->setRows(std::move(rows));
    });
    allowCommands();
    return loaded;
}

bool frmCentroCusto::reloadSummary()
{
    const bool read = load([this](Connection &connection) {
        m_summary = centres::summary(connection, m_side, centres::names(connection, m_side));
        m_ui->lstresumo->setRows(centres::rows(m_summary));
        m_ui->lbltotal->setText(m_summary.empty() ? QString()
                                                  : centres::totalsText(m_side, centres::total(m_summary)));
    });
    for (QPushButton *button : {m_ui->cmdtxt, m_ui->cmdhtml, m_ui->cmdimprimir})
        button->setEnabled(!m_summary.empty());
    return read;
}

void frmCentroCusto::showSummary()
{
    if (m_ui->xtab->currentWidget() != m_ui->abaresumo)
        return;
    if (reloadSummary() && m_summary.empty())
        messages::information(this, u"Plano de conta"_s, m_side.noCentres);
}

void frmCentroCusto::refresh(const Change &change)
{
    const Subject subject = change.subject;
    const bool namesChanged = subject == m_side.subject || subject == Subject::Database;
    if (namesChanged)
        reloadList();
    if ((namesChanged || subject == m_side.entrySubject) && m_ui->xtab->currentWidget() == m_ui->abaresumo)
        reloadSummary();
}

/// The selected centre's name; null when none is selected.
QString frmCentroCusto::selected() const
{
    const int row = m_ui->lstcentro->selectedRow();
    return row < 0 ? QString() : m_ui->lstcentro->cell(row, 0);
}

void frmCentroCusto::allowCommands()
{
    const bool any = m_ui->lstcentro->selectedRow() >= 0;
    m_ui->cmdeditar->setEnabled(any);
    m_ui->cmdremover->setEnabled(any);
}

bool frmCentroCusto::change(const std::function<void(Connection &)> &work)
{
    const bool changed = write(messages::generalPrefix, work);
    if (!changed)
        reloadList(); // the centre may be gone
    return changed;
}

bool frmCentroCusto::refuseBlank(const QString &name)
{
    const bool isBlank = name.trimmed().isEmpty();
    if (isBlank)
        messages::exclamation(this, u"Erro"_s, m_side.emptyName);
    return isBlank;
}

void frmCentroCusto::add()
{
    const QString name = m_ui->txtnome->text();
    if (refuseBlank(name) || !change([&](Connection &connection) { centres::add(connection, m_side, name); }))
        return;
    m_ui->txtnome->clear();
    m_ui->txtnome->setFocus();
}

void frmCentroCusto::rename()
{
    const QString name = selected();
    if (name.isNull())
        return;
    bool answered = false;
    const QString changed = QInputDialog::getText(this, m_side.renameTitle, m_side.renameQuestion,
                                                  QLineEdit::Normal, name, &answered);
    if (answered && !refuseBlank(changed))
        change([&](Connection &connection) { centres::rename(connection, m_side, name, changed); });
}

void frmCentroCusto::remove()
{
    const QString name = selected();
    if (!name.isNull() &&
        messages::question(this, u"Remover"_s, m_side.removeQuestion + name + u" do banco de dados?"_s))
        change([&](Connection &connection) { centres::remove(connection, m_side, name); });
}
