#include "app/frmestsoftware.h"
#include "ui_frmestsoftware.h"

#include "settings/backup.h"

#include <QCoreApplication>

frmEstSoftware::frmEstSoftware(QWidget *parent) : Screen(parent), m_ui(std::make_unique<Ui::frmEstSoftware>())
{
    m_ui->setupUi(this);
    prepare();
    const backup::Facts facts = backup::facts();
    m_ui->lblversao->setText(QCoreApplication::applicationVersion());
    m_ui->lbltamanho->setText(facts.size);
    m_ui->lblmanutencao->setText(facts.maintenance);
    m_ui->lblbackup->setText(facts.lastBackup);
    connect(m_ui->cmdok, &QPushButton::clicked, this, &QDialog::close);
}

frmEstSoftware::~frmEstSoftware() = default;

frmEstSoftware *frmEstSoftware::open(QWidget *parent)
{
    return shown(std::unique_ptr<frmEstSoftware>(new frmEstSoftware(parent)));
}
