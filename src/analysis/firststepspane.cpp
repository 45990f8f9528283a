#include "analysis/firststepspane.h"
#include "ui_firststepspane.h"

#include "analysis/firststeps.h"
#include "bank/accounts.h"
#include "bank/frmbanco.h"
#include "data/recordset.h"
#include "entries/frmadicionar.h"
#include "settings/database.h"
#include "settings/settings.h"
#include "widgets/messages.h"

using namespace Qt::StringLiterals;

FirstStepsPane::FirstStepsPane(QWidget *parent)
    : QWidget(parent), m_ui(std::make_unique<Ui::FirstStepsPane>())
{
    m_ui->setupUi(this);
    connect(m_ui->cmdpassoconta, &QPushButton::clicked, this, [this] { frmbanco::openNew(window()); });
    connect(m_ui->cmdpassosaldo, &QPushButton::clicked, this, &FirstStepsPane::editFirstAccount);
    connect(m_ui->cmdpassodespesa, &QPushButton::clicked, this,
            [this] { frmAdicionar::openNew(payable(), window()); });
    connect(m_ui->cmdpassoreceita, &QPushButton::clicked, this,
            [this] { frmAdicionar::openNew(receivable(), window()); });
    connect(m_ui->cmdpular, &QPushButton::clicked, this, &FirstStepsPane::skip);
    hide();
}

FirstStepsPane::~FirstStepsPane() = default;

void FirstStepsPane::refresh()
{
    if (!settings::isOn(settings::firstSteps)) {
        hide();
        return;
    }
    const FirstSteps steps = FirstSteps::read(*openDatabase());
    const auto show = [](QLabel *sign, bool done, std::initializer_list<QWidget *> commands, bool possible) {
        sign->setText(done ? u"✓"_s : u"○"_s);
        sign->setAccessibleName(done ? u"feito"_s : u"a fazer"_s);
        for (QWidget *command : commands)
            command->setEnabled(possible && !done);
    };
    show(m_ui->lblpasso1, steps.hasAccount, {m_ui->cmdpassoconta}, true);
    show(m_ui->lblpasso2, steps.hasBalance, {m_ui->cmdpassosaldo}, steps.hasAccount);
    show(m_ui->lblpasso3, steps.hasEntry, {m_ui->cmdpassodespesa, m_ui->cmdpassoreceita}, steps.hasAccount);
    setVisible(!steps.areDone());
}

void FirstStepsPane::editFirstAccount()
{
    QString name;
    messages::guarded(window(), messages::openPrefix, [&name] {
        Recordset accounts(*openDatabase(), u"select * from banco"_s);
        if (accounts.next())
            name = accounts.text(u"banco");
    });
    if (!name.isEmpty())
        frmbanco::openEdit(name, window());
}

void FirstStepsPane::skip()
{
    messages::guarded(window(), messages::generalPrefix,
                      [] { settings::setValue(settings::firstSteps, u"0"_s); });
    hide();
}
