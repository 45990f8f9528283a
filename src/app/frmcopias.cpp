#include "app/frmcopias.h"
#include "ui_frmcopias.h"

#include "app/backupcommands.h"
#include "bank/backupcontents.h"
#include "data/databasecopy.h"
#include "data/decimal.h"
#include "settings/database.h"
#include "widgets/files.h"
#include "widgets/messages.h"
#include "widgets/threadwork.h"

#include <QDir>
#include <QFile>
#include <QHeaderView>
#include <QSignalBlocker>

using namespace Qt::StringLiterals;

namespace {

const QString copiesTitle = u"Cópias automáticas"_s;

std::shared_ptr<StoredTable> tableOf(const std::vector<autobackup::Copy> &copies)
{
    auto table = std::make_shared<StoredTable>(
        std::vector<ListColumn>{{u"quando"_s, u"Quando"_s}, {u"tamanho"_s, u"Tamanho"_s, CellKind::Number}});
    for (const autobackup::Copy &copy : copies)
        table->append(QStringList{copy.when.toString(u"dd/MM/yyyy HH:mm"),
                                  QString::number(copy.bytes / 1024) + u" KiB"_s});
    return table;
}

} // namespace

frmCopias::frmCopias(QWidget *parent)
    : Screen(parent, Qt::Dialog | Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint),
      m_ui(std::make_unique<Ui::frmCopias>())
{
    m_ui->setupUi(this);
    prepare();
    m_ui->lstcopias->setEmptyText(u"Ainda não há cópias nesta pasta"_s);
    m_ui->lstconteudo->setEmptyText(u"Selecione uma cópia para ver o que há nela"_s);
    m_ui->lstcopias->setSelectionMode(QAbstractItemView::SingleSelection);
    m_ui->chkautomatico->setChecked(autobackup::isOn());
    connectControls();
    showCopies();
}

frmCopias::~frmCopias() = default;

frmCopias *frmCopias::open(QWidget *parent)
{
    if (auto *screen = raised<frmCopias>(parent, u"frmCopias"_s))
        return screen;
    return shown(std::unique_ptr<frmCopias>(new frmCopias(parent)));
}

void frmCopias::connectControls()
{
    connect(m_ui->chkautomatico, &QCheckBox::toggled, this, [this](bool on) {
        messages::guarded(this, messages::generalPrefix, [on] { autobackup::setOn(on); });
        const QSignalBlocker blocker(m_ui->chkautomatico);
        m_ui->chkautomatico->setChecked(autobackup::isOn());
    });
    connect(m_ui->lstcopias->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        const int row = m_ui->lstcopias->selectedRow();
        showContents(row < 0 ? QString() : m_copies[std::size_t(m_ui->lstcopias->table().heldRow(row))].path);
    });
    connect(m_ui->cmdpasta, &QPushButton::clicked, this, &frmCopias::chooseFolder);
    connect(m_ui->cmdagora, &QPushButton::clicked, this, &frmCopias::copyNow);
    connect(m_ui->cmdoutra, &QPushButton::clicked, this, [this] {
        const QString path =
            files::open(this, u"Ver o que há em uma cópia"_s, u"Arquivo de banco de dados(*.qorvex)"_s);
        if (path.isEmpty())
            return;
        m_ui->lstcopias->selectRow(-1);
        showContents(path);
    });
    connect(m_ui->cmdrestaurar, &QPushButton::clicked, this, &frmCopias::restore);
    connect(m_ui->cmdsair, &QPushButton::clicked, this, &QDialog::close);
}

void frmCopias::showCopies()
{
    m_copies = autobackup::copies();
    m_ui->txtpasta->setText(QDir::toNativeSeparators(autobackup::folder()));
    m_ui->lstcopias->setTable(tableOf(m_copies));
    m_ui->lstcopias->header()->setStretchLastSection(true);
    m_ui->lstcopias->selectRow(m_copies.empty() ? -1 : 0);
    if (m_copies.empty())
        showContents({});
}

/// A copy that does not open shows nothing, and cannot be put back.
void frmCopias::showContents(const QString &path)
{
    std::shared_ptr<StoredTable> contents;
    m_shown.clear();
    if (!path.isEmpty() && messages::guarded(place(), messages::generalPrefix, [&] {
            contents = backupcontents::compare(path, databasePath());
        }))
        m_shown = path;
    m_ui->lblcopia->setText(m_shown.isEmpty() ? QString() : QDir::toNativeSeparators(m_shown));
    m_ui->lstconteudo->setTable(
        contents ? contents
                 : std::make_shared<StoredTable>(std::vector<ListColumn>{{u"dado"_s, u"Dados"_s}}));
    m_ui->lstconteudo->header()->setStretchLastSection(true);
    m_ui->cmdrestaurar->setEnabled(!m_shown.isEmpty());
}

void frmCopias::chooseFolder()
{
    const QString path = files::folder(this, u"Pasta das cópias automáticas"_s, autobackup::folder());
    if (path.isEmpty())
        return;
    messages::guarded(this, messages::generalPrefix, [&path] { autobackup::setFolder(path); });
    showCopies();
}

void frmCopias::copyNow()
{
    if (backupcommands::copyNow(this))
        showCopies();
}

/// What is there now becomes a copy first, so that a restore can be taken back, too.
void frmCopias::restore()
{
    const QString chosen = m_shown, live = databasePath();
    if (!messages::question(
            this, copiesTitle,
            u"O banco de dados passa a ser o desta cópia. O que foi lançado depois dela não estará "
            "mais nas listas; o estado de agora é guardado antes como mais uma cópia.\n\nDeseja "
            "restaurar esta cópia?"_s))
        return;
    if (QFile::exists(live) && autobackup::hasNews() && !backupcommands::copyNow(this, chosen) &&
        !messages::question(
            this, copiesTitle,
            u"O estado de agora não pôde ser guardado. Deseja restaurar a cópia assim mesmo?"_s))
        return;
    if (!threadwork::run(this, copiesTitle,
                         u"A cópia está sendo conferida e posta no lugar do banco de dados."_s,
                         [&](Progress &progress) { databasecopy::restore(chosen, live, progress); }))
        return;
    load([](Connection &) {}); // another file is noticed, and everything read anew
    showCopies();
    messages::information(this, copiesTitle, u"Cópia restaurada com sucesso!"_s);
}
