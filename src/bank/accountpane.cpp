#include "bank/accountpane.h"
#include "ui_accountpane.h"

#include "bank/frmbanco.h"
#include "reports/listexportcommands.h"
#include "settings/database.h"
#include "settings/settings.h"
#include "widgets/listcommand.h"
#include "widgets/messages.h"

#include <QAction>

using namespace Qt::StringLiterals;

namespace {

const QString waitTitle = u"Atualizando saldo bancario ...\r\nCarregando caixas e banco ..."_s;
const QString waitText =
    u"Aguarde enquanto o software carrega os bancos e caixas cadastros e atualiza o saldo disponível "
    "em cada banco, este processo pode demorar dependendo do tamanho do banco de dados."_s;

} // namespace

AccountPane::AccountPane(QWidget *parent)
    : QWidget(parent), m_ui(std::make_unique<Ui::AccountPane>()), m_work(this)
{
    m_ui->setupUi(this);
    m_ui->lstcaixabanco->setColumns(accounts::columns());
    m_ui->lstcaixabanco->setEmptyText(u"Nenhum caixa ou banco cadastrado"_s);
    m_ui->divisor->setStretchFactor(0, 3);
    m_ui->divisor->setStretchFactor(1, 2);
    makeCommands();
}

AccountPane::~AccountPane() = default;

ListView &AccountPane::list()
{
    return *m_ui->lstcaixabanco;
}

void AccountPane::makeCommands()
{
    const auto command = [this](const QString &name, const listcommand::Look &look) {
        return listcommand::add(m_ui->comandos, *m_ui->lstcaixabanco, name, look);
    };
    addCommand = command(u"cmdadicionarb"_s, listcommand::addLook(u"Cadastra um caixa ou banco"_s));
    editCommand =
        command(u"cmdalterarb"_s, listcommand::editLook(u"Altera o saldo inicial e as informações"_s));
    removeCommand =
        command(u"cmdremoverb"_s, listcommand::removeLook(u"Remove o caixa ou banco selecionado"_s));
    statementCommand = command(u"cmdconfbanc"_s, {u"Extrato"_s, u"view-financial-account-checking"_s,
                                                  u"Extrato do caixa ou banco selecionado"_s});
    addListExport(m_ui->comandos, *m_ui->lstcaixabanco, u"b"_s, [this] {
        return Report{.title = u"Caixas e bancos"_s,
                      .subtitle = u"Saldos"_s,
                      .tables = {m_ui->lstcaixabanco->tableSource()},
                      .statistics = m_ui->txtresucaixa->toPlainText()};
    });
    connect(addCommand, &QAction::triggered, this, [this] { frmbanco::openNew(window()); });
    connect(editCommand, &QAction::triggered, this, &AccountPane::editSelected);
    connect(removeCommand, &QAction::triggered, this, &AccountPane::removeSelected);
    connect(m_ui->lstcaixabanco, &ListView::rowActivated, editCommand, &QAction::trigger);
    connect(m_ui->lstcaixabanco, &ListView::insertRequested, addCommand, &QAction::trigger);
    connect(m_ui->lstcaixabanco, &ListView::removeRequested, removeCommand, &QAction::trigger);
}

QString AccountPane::selectedAccount() const
{
    const int row = m_ui->lstcaixabanco->selectedRow();
    return row < 0 ? QString() : m_ui->lstcaixabanco->cell(row, 0);
}

bool AccountPane::refresh()
{
    const BalanceMode mode = accounts::balanceMode(settings::value(settings::updateBalances));
    return messages::guarded(window(), messages::generalPrefix, [&] {
        if (mode == BalanceMode::KeepList) {
            show(std::move(m_shown));
            return;
        }
        const auto load = std::make_shared<BalanceLoad>(openDatabase(), mode == BalanceMode::Recompute);
        m_missed = false;
        m_work.start(
            {.title = waitTitle,
             .text = waitText,
             .run = [load](const QDeadlineTimer &until) { return load->run(until); },
             .interrupted = {},
             .done =
                 [this, load, mode] {
                     m_serial = load->serial();
                     m_dataVersion = load->dataVersion();
                     m_isCurrent = mode == BalanceMode::Recompute && !m_missed;
                     show(load->takeBalances());
                 },
             .failed =
                 [this](const Error &error) { messages::error(window(), messages::generalPrefix, error); },
             .total = [load] { return load->accounts(); },
             .progress = [load] { return load->accountsDone(); }});
    });
}

void AccountPane::show(std::vector<AccountBalance> balances)
{
    const bool same = m_shown == balances && m_ui->lstcaixabanco->rowCount() == int(balances.size());
    m_shown = std::move(balances);
    if (same && !m_ui->txtresucaixa->document()->isEmpty()) {
        Q_EMIT loaded();
        return;
    }
    m_ui->lstcaixabanco->setRows(accounts::rows(m_shown));
    m_ui->txtresucaixa->setPlainText(accounts::summary(m_shown));
    Q_EMIT loaded();
}

void AccountPane::follow(const Change &change)
{
    const bool movesMoney = change.subject == Subject::Payables || change.subject == Subject::Receivables ||
                            change.subject == Subject::Movements;
    const auto mode = accounts::balanceMode(settings::value(settings::updateBalances));
    messages::guarded(window(), messages::generalPrefix, [&] {
        const std::shared_ptr<Connection> database = openDatabase();
        m_isCurrent &= mode == BalanceMode::Recompute;
        const bool known = movesMoney && !m_work.isRunning() && m_isCurrent &&
                           database->serial() == m_serial && database->dataVersion() == m_dataVersion;
        std::vector<AccountBalance> followed = m_shown;
        if (known && accounts::follow(followed, change))
            show(std::move(followed));
        else
            refresh();
    });
}

int AccountPane::selectedOrTell()
{
    return m_ui->lstcaixabanco->selectedRowOrTell(u"Caixa/Banco"_s,
                                                  u"Selecione um caixa ou banco na lista."_s);
}

void AccountPane::editSelected()
{
    const int row = selectedOrTell();
    if (row >= 0)
        frmbanco::openEdit(m_ui->lstcaixabanco->cell(row, 0), window(), m_serial);
}

void AccountPane::removeSelected()
{
    const int row = selectedOrTell();
    if (row < 0)
        return;
    const QString name = m_ui->lstcaixabanco->cell(row, 0);
    if (!messages::question(this, u"Remover"_s,
                            u"Tem certeza que deseja remover "_s + name + u" ("_s +
                                m_ui->lstcaixabanco->cell(row, 1) + u") do banco de dados?"_s))
        return;
    m_isCommanding = true;
    messages::guarded(this, messages::generalPrefix,
                      [&] { accounts::remove(*openDatabase(m_serial), name); });
    m_isCommanding = false;
}
