#include "agenda/frmalerta.h"
#include "ui_frmalerta.h"

#include "data/clock.h"
#include "data/dates.h"
#include "entries/opencommands.h"
#include "entries/settlecommands.h"
#include "widgets/messages.h"

#include <algorithm>

using namespace Qt::StringLiterals;

frmAlerta::frmAlerta(QWidget *parent)
    : Screen(parent, Qt::Dialog | Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint),
      m_ui(std::make_unique<Ui::frmAlerta>())
{
    m_ui->setupUi(this);
    prepare();
    m_halves.push_back({payable(), m_ui->lstpagar, m_ui->lbltotalpagar, m_ui->cmdbaixap});
    m_halves.push_back({receivable(), m_ui->lstreceber, m_ui->lbltotalreceber, m_ui->cmdbaixar});
    for (const Half &half : m_halves) {
        half.list->setEmptyText(u"Nenhuma conta pendente vence hoje"_s);
        opencommands::openOnActivation(*half.list);
        connect(half.settle, &QPushButton::clicked, this, [this, &half] { settle(half); });
    }
    connect(m_ui->cmdfechar, &QPushButton::clicked, this, &QDialog::close);
    connect(&Changes::instance(), &Changes::changed, this, [this](const Change &change) {
        const auto shows = [&](const Half &half) { return half.side.subject == change.subject; };
        if (change.subject == Subject::Database || std::ranges::any_of(m_halves, shows))
            read();
    });
}

frmAlerta::~frmAlerta() = default;

frmAlerta *frmAlerta::open(QWidget *parent)
{
    if (auto *screen = raised<frmAlerta>(parent, u"frmAlerta"_s)) {
        screen->read();
        return screen;
    }
    auto screen = std::unique_ptr<frmAlerta>(new frmAlerta(parent));
    return screen->read() && !screen->isEmpty() ? shown(std::move(screen)) : nullptr;
}

bool frmAlerta::read()
{
    const QDate today = programclock::today();
    std::vector<DueEntries> due;
    if (!load([&](Connection &connection) {
            const ReadLock oneState(connection);
            for (const Half &half : m_halves)
                due.push_back(duealert::read(connection, half.side, today));
        }))
        return false;
    m_ui->lbltopo->setText(u"Contas pendentes com vencimento hoje, "_s + dates::longDate(today));
    for (std::size_t i = 0; i < due.size(); ++i) {
        const Half &half = m_halves[i];
        half.list->setTable(due[i].rows);
        half.totals->setText(duealert::totals(half.side, due[i]));
        half.settle->setEnabled(due[i].rows->rowCount() > 0);
    }
    return true;
}

bool frmAlerta::isEmpty() const
{
    return std::ranges::all_of(m_halves, [](const Half &half) { return half.list->rowCount() == 0; });
}

void frmAlerta::settle(const Half &half)
{
    if (half.list->selectedRowOrTell(u"Lançamentos"_s, u"Selecione um lançamento na lista."_s) < 0)
        return;
    QStringList codes;
    quint64 file = 0;
    for (const int row : half.list->selectedRows()) {
        const std::optional<RowOrigin> origin = half.list->origin(row);
        codes << QString::number(origin->key);
        file = origin->file;
    }
    if (settlecommands::settle(this, half.side, file, codes) == settlecommands::Outcome::Gone)
        read();
}
