#include "analysis/frmestatisticas.h"
#include "ui_frmestatisticas.h"

#include "analysis/databasefacts.h"
#include "data/clock.h"
#include "reports/listexportcommands.h"

using namespace Qt::StringLiterals;

frmEstatisticas::frmEstatisticas(QWidget *parent)
    : Screen(parent), m_ui(std::make_unique<Ui::frmEstatisticas>())
{
    m_ui->setupUi(this);
    prepare();
    m_ui->cmdsair->setFocus();
    connectExports(this, {m_ui->cmdimprimir, m_ui->cmdtxt, m_ui->cmdhtml}, [this] {
        return Report{.title = windowTitle(),
                      .lines = {m_ui->lbltitulotamanho->text() + u' ' + m_ui->lbltamanho->text(),
                                m_ui->lbltitulodias->text() + u' ' + m_ui->lbldias->text()}};
    });
    connect(m_ui->cmdsair, &QPushButton::clicked, this, &QDialog::close);
}

frmEstatisticas::~frmEstatisticas() = default;

frmEstatisticas *frmEstatisticas::open(QWidget *parent)
{
    auto screen = std::unique_ptr<frmEstatisticas>(new frmEstatisticas(parent));
    if (!screen->load([&](Connection &connection) {
            screen->m_ui->lbltamanho->setText(databasefacts::size());
            screen->m_ui->lbldias->setText(databasefacts::days(connection, programclock::today()));
        }))
        return nullptr;
    return shown(std::move(screen));
}
