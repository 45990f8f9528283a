#include "analysis/frmgeradorret.h"

#include "analysis/frmrelatorioint.h"
#include "analysis/sectionpane.h"
#include "widgets/messages.h"
#include "widgets/reading.h"

#include <QBoxLayout>
#include <QPushButton>
#include <QTabWidget>

using namespace Qt::StringLiterals;

frmGeradorRet::frmGeradorRet(QWidget *parent) : Screen(parent)
{
    setObjectName(u"frmGeradorRet"_s);
    setWindowTitle(u"Gerador de relatórios"_s);
    resize(860, 520);
    auto *layout = new QVBoxLayout(this);
    auto *tabs = new QTabWidget(this);
    tabs->setObjectName(u"secoes"_s);
    layout->addWidget(tabs, 1);
    for (int i = 0; i < integratedreport::sectionCount; ++i) {
        const integratedreport::Section &section = integratedreport::section(i);
        m_sections[std::size_t(i)] = new SectionPane(section, tabs);
        tabs->addTab(m_sections[std::size_t(i)], section.caption);
    }
    auto *buttons = new QHBoxLayout;
    layout->addLayout(buttons);
    buttons->addStretch();
    auto *show = new QPushButton(u"&Mostrar na tela"_s, this);
    show->setObjectName(u"cmdnatela"_s);
    auto *leave = new QPushButton(u"&Sair"_s, this);
    leave->setObjectName(u"cmdsair"_s);
    leave->setAutoDefault(false);
    buttons->addWidget(show);
    buttons->addWidget(leave);
    prepare();
    connect(show, &QPushButton::clicked, this, &frmGeradorRet::showReport);
    connect(leave, &QPushButton::clicked, this, &QDialog::close);
}

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
