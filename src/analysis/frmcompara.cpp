#include "analysis/frmcompara.h"
#include "ui_frmcompara.h"

#include "analysis/comparisonpane.h"

using namespace Qt::StringLiterals;

frmCompara::frmCompara(const Side &side, QWidget *parent)
    : Screen(parent, Qt::Dialog | Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint),
      m_ui(std::make_unique<Ui::frmCompara>())
{
    m_ui->setupUi(this);
    setObjectName(side.comparisonName);
    m_ui->tabcomparacao->addTab(new ComparisonPane(side, comparison::Span::Year, this), u"&Anos"_s);
    m_ui->tabcomparacao->addTab(new ComparisonPane(side, comparison::Span::Month, this), u"M&eses"_s);
    prepare();
    connect(m_ui->tabcomparacao, &QTabWidget::currentChanged, this,
            [this, &side](int tab) { setWindowTitle(comparison::caption(side, comparison::Span(tab))); });
    connect(m_ui->cmdsair, &QPushButton::clicked, this, &QDialog::close);
}

frmCompara::~frmCompara() = default;

frmCompara *frmCompara::open(const Side &side, comparison::Span span, QWidget *parent)
{
    auto screen = std::unique_ptr<frmCompara>(new frmCompara(side, parent));
    screen->m_ui->tabcomparacao->setCurrentIndex(int(span));
    screen->setWindowTitle(comparison::caption(side, span));
    return shown(std::move(screen));
}
