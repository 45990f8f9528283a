#include "analysis/frmconfrelatorio2.h"
#include "ui_frmconfrelatorio2.h"

#include "analysis/dialogpane.h"
#include "lists/readrows.h"
#include "widgets/messages.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

using namespace Qt::StringLiterals;
using dialogreports::Choice;

namespace {

constexpr int commandCount = 5;

const dialogreports::Command &commandAt(std::size_t at)
{
    return dialogreports::command(Choice(at));
}

} // namespace

frmConfRelatorio2::frmConfRelatorio2(QWidget *parent)
    : Screen(parent),
      m_ui(std::make_unique<Ui::frmConfRelatorio2>()),
      m_dates(new DialogDates({}, true, false, this)),
      m_received(new QRadioButton(this))
{
    m_ui->setupUi(this);
    auto *grid = m_ui->grade;
    grid->addWidget(m_dates, 0, 0, 1, 3);
    for (int row = 0; row < commandCount; ++row) {
        const dialogreports::Command &command = commandAt(std::size_t(row));
        auto *box = new QComboBox(this);
        box->setObjectName(u"cbo"_s + command.control);
        box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        box->setMinimumContentsLength(30);
        auto *label = new QLabel(command.label, this);
        label->setBuddy(box);
        auto *show = new QPushButton(u"Mostrar"_s, this);
        show->setObjectName(u"cmd"_s + command.control);
        show->setAccessibleName(u"Mostrar: "_s + command.title);
        show->setAutoDefault(false);
        grid->addWidget(label, row + 1, 0);
        grid->addWidget(box, row + 1, 1);
        grid->addWidget(show, row + 1, 2);
        connect(show, &QPushButton::clicked, this, [this, row] { showReport(std::size_t(row)); });
        m_names.push_back(box);
    }
    auto *paid = new QRadioButton(u"&Despesas"_s, this);
    paid->setObjectName(u"optdespesas"_s);
    paid->setChecked(true);
    m_received->setText(u"&Receitas"_s);
    m_received->setObjectName(u"optreceitas"_s);
    auto *sides = new QHBoxLayout;
    sides->addWidget(paid);
    sides->addWidget(m_received);
    sides->addStretch();
    grid->addLayout(sides, commandCount + 1, 1);
    grid->setRowStretch(commandCount + 2, 1);
    prepare();
}

frmConfRelatorio2::~frmConfRelatorio2() = default;

frmConfRelatorio2 *frmConfRelatorio2::open(Choice kind, QWidget *parent)
{
    auto screen = std::unique_ptr<frmConfRelatorio2>(new frmConfRelatorio2(parent));
    if (!screen->load([&](Connection &connection) { screen->fill(connection); }))
        return nullptr;
    screen->m_names[std::size_t(kind)]->setFocus();
    return shown(std::move(screen));
}

void frmConfRelatorio2::fill(Connection &connection)
{
    for (std::size_t i = 0; i < m_names.size(); ++i) {
        m_names[i]->clear();
        m_names[i]->addItem(QString());
        m_names[i]->addItems(readrows::names(connection, commandAt(i).names, commandAt(i).column));
    }
}

void frmConfRelatorio2::showReport(std::size_t at)
{
    const bool received = at == std::size_t(Choice::Payment) && m_received->isChecked();
    const dialogreports::Command &command =
        received ? dialogreports::command(Choice::PaymentReceived) : commandAt(at);
    dialogreports::Choices choices;
    m_dates->into(choices);
    choices.names = {m_names[at]->currentText()};
    if (const QString text = problem(command, choices); !text.isEmpty()) {
        messages::exclamation(this, u"Erro"_s, text);
        return;
    }
    dialogcommands::show(this, dialogreports::nothingFound.toString() + u'!',
                         [&](Connection &connection, Progress &progress) {
                             return read(connection, command, choices, &progress);
                         });
}
