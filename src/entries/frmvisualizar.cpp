#include "entries/frmvisualizar.h"
#include "ui_frmvisualizar.h"

#include "data/clock.h"
#include "reports/listexportcommands.h"
#include "settings/database.h"
#include "settings/listlayout.h"
#include "settings/settings.h"
#include "widgets/listfeed.h"
#include "widgets/messages.h"
#include "widgets/settingmenu.h"

using namespace Qt::StringLiterals;

frmVisualizar::frmVisualizar(const ViewKind &kind, ViewPeriod period, QWidget *parent)
    : Screen(parent), m_ui(std::make_unique<Ui::frmVisualizar>()), m_kind(kind), m_period(period)
{
    m_ui->setupUi(this);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    prepare();
    m_feed = new ListFeed(*m_ui->lstdados, kind.layout().columns, std::make_unique<FigureTotals>(),
                          kind.loadingTitle);
    m_ui->lstdados->applyLayout(listlayout::load(kind.layout()));
    m_ui->lstdados->setEmptyText(u"Nenhum dado cadastrado neste período"_s);
    makeMenu();
    makeExports();
    connect(m_ui->cmdsair, &QPushButton::clicked, this, &QDialog::close);
    connect(m_feed, &ListFeed::loaded, this, &frmVisualizar::showTotals);
    connect(m_feed, &ListFeed::failed, this,
            [this](const Error &error) { messages::error(this, messages::generalPrefix, error); });
    connect(&Changes::instance(), &Changes::changed, this, [this](const Change &change) {
        if (change.subject == m_kind.subject)
            messages::guarded(this, messages::generalPrefix, [&] { m_feed->follow(change); });
        else if (change.subject == Subject::Settings || change.subject == Subject::Database)
            reload();
    });
}

frmVisualizar::~frmVisualizar() = default;

frmVisualizar *frmVisualizar::open(const ViewKind &kind, ViewPeriod period, QWidget *parent)
{
    auto screen = std::unique_ptr<frmVisualizar>(new frmVisualizar(kind, period, parent));
    return screen->reload() ? shown(std::move(screen)) : nullptr;
}

void frmVisualizar::makeExports()
{
    const auto report = [this] {
        m_feed->finish();
        return Report{.title = windowTitle(),
                      .subtitle = m_kind.heading,
                      .filterText = m_ui->lblperiodo->text(),
                      .tables = {m_ui->lstdados->tableSource()},
                      .statistics = m_ui->lbltotal->text()};
    };
    connectExports(this, {m_ui->cmdimprimir, m_ui->cmdtxt, m_ui->cmdhtml}, report, exportar::reportTexts(),
                   m_kind.pages);
}

void frmVisualizar::makeMenu()
{
    settingmenu::add(m_ui->lstdados, settings::viewOrder,
                     {{u"popordemasc"_s, u"Ordem &crescente"_s, u"ASC"_s},
                      {u"popordemdesc"_s, u"Ordem &decrescente"_s, u"DESC"_s}});
}

bool frmVisualizar::reload()
{
    return messages::guarded(place(), messages::generalPrefix, [this] {
        m_feed->load(
            periodview::query(m_kind, periodview::shownPeriod(m_kind, m_period), programclock::today()));
    });
}

void frmVisualizar::showTotals()
{
    const ViewPeriod period = periodview::shownPeriod(m_kind, m_period);
    m_ui->lbltotal->setText(
        periodview::summary(m_kind, period, static_cast<const FigureTotals &>(m_feed->totals()).figures));
    setWindowTitle(periodview::title(m_kind, period));
    m_ui->lblperiodo->setText(periodview::periodText(period, programclock::today()));
}
