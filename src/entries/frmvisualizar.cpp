#include "entries/frmvisualizar.h"
#include "ui_frmvisualizar.h"

#include "data/clock.h"
#include "reports/exportcommands.h"
#include "settings/database.h"
#include "settings/listlayout.h"
#include "settings/settings.h"
#include "widgets/background.h"
#include "widgets/frmcarregando.h"
#include "widgets/messages.h"
#include "widgets/waittext.h"

#include <QActionGroup>

using namespace Qt::StringLiterals;

frmVisualizar::frmVisualizar(const ViewKind &kind, ViewPeriod period, QWidget *parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::frmVisualizar>()), m_kind(kind), m_period(period)
{
    m_ui->setupUi(this);
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    background::apply(this);
    m_ui->lstdados->setColumns(kind.columns());
    m_ui->lstdados->applyLayout(listlayout::load(kind.layout));
    m_ui->lstdados->setEmptyText(u"Nenhum dado cadastrado neste período"_s);
    makeMenu();
    connectExports();
    connect(m_ui->cmdsair, &QPushButton::clicked, this, &QDialog::close);
    connect(&Changes::instance(), &Changes::changed, this, [this](const Change &change) {
        if (change.subject == m_kind.subject || change.subject == Subject::Settings)
            reload();
    });
}

frmVisualizar::~frmVisualizar() = default;

frmVisualizar *frmVisualizar::open(const ViewKind &kind, ViewPeriod period, QWidget *parent)
{
    auto screen = std::unique_ptr<frmVisualizar>(new frmVisualizar(kind, period, parent));
    if (!screen->reload())
        return nullptr;
    screen->show();
    return screen.release();
}

void frmVisualizar::connectExports()
{
    const auto report = [this] {
        return Report{.title = windowTitle(),
                      .subtitle = m_kind.heading,
                      .filterText = m_ui->lblperiodo->text(),
                      .tables = {m_ui->lstdados->tableSource()},
                      .statistics = m_ui->lbltotal->text()};
    };
    connect(m_ui->cmdtxt, &QPushButton::clicked, this,
            [=, this] { exportar::saveText(this, report(), exportar::reportTexts()); });
    connect(m_ui->cmdhtml, &QPushButton::clicked, this,
            [=, this] { exportar::saveHtml(this, report(), exportar::reportTexts()); });
    connect(m_ui->cmdimprimir, &QPushButton::clicked, this, [=, this] {
        const Report shown = report();
        exportar::print(this, shown, modimpressao::listPages(m_kind.pages, *shown.tables.front()));
    });
}

void frmVisualizar::makeMenu()
{
    m_ui->lstdados->setContextMenuPolicy(Qt::ActionsContextMenu);
    addChoices(settings::viewOrder, {{u"popordemasc"_s, u"Ordem &crescente"_s, u"ASC"_s},
                                     {u"popordemdesc"_s, u"Ordem &decrescente"_s, u"DESC"_s}});
    if (!m_kind.limitedBySetting)
        return;
    auto *separator = new QAction(this);
    separator->setSeparator(true);
    m_ui->lstdados->addAction(separator);
    addChoices(settings::bankViewPeriod, {{u"popbanctodos"_s, u"&Sem limite"_s, u"0"_s},
                                          {u"popbancmes"_s, u"Limitar ao &mês atual"_s, u"1"_s},
                                          {u"popbancano"_s, u"Limitar ao &ano atual"_s, u"2"_s}});
}

void frmVisualizar::addChoices(const settings::Key &key, const std::vector<Choice> &choices)
{
    auto *group = new QActionGroup(this);
    for (const Choice &choice : choices) {
        QAction *action = group->addAction(choice.text);
        action->setObjectName(choice.name);
        action->setCheckable(true);
        const auto check = [action, key, value = choice.value] {
            action->setChecked(settings::value(key) == value);
        };
        check();
        connect(&Changes::instance(), &Changes::changed, action, check);
        m_ui->lstdados->addAction(action);
        connect(action, &QAction::triggered, this, [this, key, value = choice.value] {
            messages::guarded(this, messages::generalPrefix, [&] { settings::setValue(key, value); });
            Changes::announce(Subject::Settings); // also after a failure: the marks show what is stored
        });
    }
}

bool frmVisualizar::reload()
{
    return messages::guarded(isVisible() ? this : parentWidget(), messages::generalPrefix, [this] {
        const ViewPeriod period = periodview::shownPeriod(m_kind, m_period);
        const QDate today = programclock::today();
        WaitProgress progress(isVisible() ? this : parentWidget(), m_kind.loadingTitle, listWaitText());
        ViewList list = m_kind.load(*openDatabase(), periodview::query(m_kind, period, today), &progress);
        m_ui->lbltotal->setText(periodview::summary(m_kind, period, list.totals));
        setWindowTitle(periodview::title(m_kind, period));
        m_ui->lblperiodo->setText(periodview::periodText(period, today));
        m_ui->lstdados->setRows(std::move(list.rows));
    });
}
