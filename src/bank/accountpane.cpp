#include "bank/accountpane.h"
#include "ui_accountpane.h"

#include "bank/frmbanco.h"
#include "reports/listexportcommands.h"
#include "settings/database.h"
#include "settings/settings.h"
#include "widgets/frmcarregando.h"
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

AccountPane::AccountPane(QWidget *parent) : QWidget(parent), m_ui(std::make_unique<Ui::AccountPane>())
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
    connect(m_ui->lstcaixabanco, &ListView::removeRequested, removeCommand, &QAction::trigger);
}

bool AccountPane::refresh()
{
    const BalanceMode mode = accounts::balanceMode(settings::value(settings::updateBalances));
    return messages::guarded(this, messages::generalPrefix, [&] {
        const std::shared_ptr<Connection> database = openDatabase();
        Connection &connection = *database;
        if (mode != BalanceMode::KeepList) {
            const bool recompute = mode == BalanceMode::Recompute;
            WaitProgress progress(window(), waitTitle, waitText);
            m_shown = accounts::balances(connection, recompute, recompute ? &progress : nullptr);
            m_ui->lstcaixabanco->setRows(accounts::rows(m_shown));
        }
        m_ui->txtresucaixa->setPlainText(accounts::summary(m_shown));
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
        frmbanco::openEdit(m_ui->lstcaixabanco->cell(row, 0), window());
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
    if (!messages::guarded(this, messages::generalPrefix, [&] { accounts::remove(*openDatabase(), name); }))
        return;
    Q_EMIT changed();
}
