#include "analysis/frmgeradorret.h"
#include "ui_frmgeradorret.h"

#include "analysis/frmrelatorioint.h"
#include "analysis/sectionpane.h"
#include "widgets/messages.h"
#include "widgets/reading.h"

#include <QBoxLayout>
#include <QPushButton>
#include <QTabWidget>

using namespace Qt::StringLiterals;

frmGeradorRet::frmGeradorRet(QWidget *parent) : Screen(parent), m_ui(std::make_unique<Ui::frmGeradorRet>())
{
    m_ui->setupUi(this);
    QTabWidget *tabs = m_ui->secoes;
    for (int i = 0; i < integratedreport::sectionCount; ++i) {
        const integratedreport::Section &section = integratedreport::section(i);
        m_sections[std::size_t(i)] = new SectionPane(section, tabs);
        tabs->addTab(m_sections[std::size_t(i)], section.caption);
    }
    prepare();
    connect(m_ui->cmdnatela, &QPushButton::clicked, this, &frmGeradorRet::showReport);
    connect(m_ui->cmdsair, &QPushButton::clicked, this, &QDialog::close);
}

frmGeradorRet::~frmGeradorRet() = default;

frmGeradorRet *frmGeradorRet::open(QWidget *parent)
{
    return shown(std::unique_ptr<frmGeradorRet>(new frmGeradorRet(parent)));
}

void frmGeradorRet::showReport()
{
    integratedreport::Choices choices;
    for (std::size_t i = 0; i < choices.size(); ++i) {
        if (m_sections[i]->lacksDates()) {
            messages::exclamation(this, u"Erro"_s, u"As datas que deseja filtrar devem ser definidas!"_s);
            return;
        }
        choices[i] = m_sections[i]->choices();
    }
    integratedreport::Result result;
    if (reading::run(this, u"Carregando relatório integrado"_s,
                     [&](Connection &connection, Progress &progress) {
                         result = integratedreport::read(connection, choices, &progress);
                     }))
        frmRelatorioInt::open(std::move(result), this);
}
