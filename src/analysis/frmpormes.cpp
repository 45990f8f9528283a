#include "analysis/frmpormes.h"
#include "ui_frmpormes.h"

#include "analysis/projection.h"
#include "data/clock.h"
#include "entries/opencommands.h"
#include "lists/readrows.h"
#include "reports/listexportcommands.h"
#include "settings/database.h"
#include "widgets/reading.h"

#include <QSignalBlocker>

using namespace Qt::StringLiterals;

frmPorMes::frmPorMes(const Side &side, monthview::Basis basis, QWidget *parent)
    : Screen(parent, Qt::Dialog | Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint),
      m_ui(std::make_unique<Ui::frmPorMes>()),
      m_side(side),
      m_basis(basis)
{
    m_ui->setupUi(this);
    setObjectName(basis == monthview::Basis::EntryDate ? u"frmPorMes"_s : u"frmVenPorMes"_s);
    const QStringList months = projection::monthNames();
    for (const QString &month : months)
        m_ui->meses->addTab(month);
    m_ui->txtano->setValue(programclock::today().year());
    m_ui->lstdados->setEmptyText(u"Nenhuma conta neste mês"_s);
    prepare();
    connectCommands();
}

frmPorMes::~frmPorMes() = default;

frmPorMes *frmPorMes::open(const Side &side, monthview::Basis basis, QWidget *parent)
{
    auto screen = std::unique_ptr<frmPorMes>(new frmPorMes(side, basis, parent));
    return screen->showYear(true) ? shown(std::move(screen)) : nullptr;
}

void frmPorMes::connectCommands()
{
    connect(m_ui->cmdverificar, &QPushButton::clicked, this, [this] { showYear(); });
    connect(m_ui->meses, &QTabBar::currentChanged, this, [this] { reload(); });
    connect(m_ui->cmdsair, &QPushButton::clicked, this, &QDialog::close);
    connect(&Changes::instance(), &Changes::changed, this, [this](const Change &change) {
        if (change.subject == m_side.subject || change.subject == Subject::Database)
            reload();
    });
    connect(m_ui->lstdados, &ListView::rowActivated, this, [this](int row) {
        // Entries of another file are only looked at.
        if (const auto origin = m_ui->lstdados->origin(row); origin && monthview::file() == databasePath())
            opencommands::open(*origin, this);
    });
    connectExports(this, {m_ui->cmdimprimir, m_ui->cmdtxt, m_ui->cmdhtml}, [this] {
        return Report{.title = windowTitle(),
                      .subtitle = m_ui->meses->tabText(m_ui->meses->currentIndex()),
                      .tables = {m_ui->lstdados->tableSource()},
                      .statistics = m_ui->lbltotal->text(),
                      .textStatistics = m_ui->lbltotal->text()};
    });
}

bool frmPorMes::showYear(bool firstLook)
{
    m_year = m_ui->txtano->value();
    setWindowTitle(monthview::caption(m_side, m_year));
    const QSignalBlocker quiet(m_ui->meses);
    m_ui->meses->setCurrentIndex(0);
    return reload(firstLook);
}

bool frmPorMes::reload(bool firstLook)
{
    const std::vector<ListColumn> columns = monthview::columns(m_side);
    const QString sql = monthview::query(m_side, m_basis, m_year, m_ui->meses->currentIndex() + 1, firstLook);
    auto table = std::make_shared<StoredTable>(columns);
    FigureTotals totals;
    const bool read = reading::run(place(), m_side.loadingTitle, [&](Connection &own, Progress &progress) {
        const std::unique_ptr<Connection> other = monthview::openOther();
        readrows::into(*table, other ? *other : own, sql, columns, m_side.subject, totals, &progress);
    });
    if (!read)
        return false;
    m_ui->lstdados->setTable(std::move(table));
    m_ui->lbltotal->setText(monthview::totals(m_side, totals.figures));
    return true;
}
