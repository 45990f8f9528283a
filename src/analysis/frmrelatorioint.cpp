#include "analysis/frmrelatorioint.h"
#include "ui_frmrelatorioint.h"

#include "entries/opencommands.h"
#include "reports/exportcommands.h"
#include "widgets/listview.h"

#include <QBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;

frmRelatorioInt::frmRelatorioInt(integratedreport::Result result, QWidget *parent)
    : Screen(parent, Qt::Dialog | Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint),
      m_ui(std::make_unique<Ui::frmRelatorioInt>()),
      m_result(std::move(result)),
      m_list(new ListView(this))
{
    m_ui->setupUi(this);
    m_list->setObjectName(u"lstrelatorio"_s);
    m_list->setAccessibleName(windowTitle());
    m_list->setEmptyText(u"Nenhum registro neste relatório"_s);
    m_list->setTable(m_result.table);
    opencommands::openOnActivation(*m_list);
    m_ui->corpo->addWidget(m_list, 3);
    m_ui->corpo->addWidget(texts(), 2);
    m_ui->corpo->addWidget(buttons());
    prepare();
}

frmRelatorioInt::~frmRelatorioInt() = default;

frmRelatorioInt *frmRelatorioInt::open(integratedreport::Result result, QWidget *parent)
{
    return shown(std::unique_ptr<frmRelatorioInt>(new frmRelatorioInt(std::move(result), parent)));
}

QWidget *frmRelatorioInt::texts()
{
    auto *row = new QWidget(this);
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    const auto add = [&](const QString &name, const QString &caption, const QString &text) {
        auto *box = new QPlainTextEdit(text, row);
        box->setObjectName(name);
        box->setReadOnly(true);
        box->setTabChangesFocus(true);
        auto *label = new QLabel(caption, row);
        label->setBuddy(box);
        auto *column = new QVBoxLayout;
        column->addWidget(label);
        column->addWidget(box);
        layout->addLayout(column);
    };
    for (int i = 0; i < integratedreport::sectionCount; ++i)
        add(integratedreport::section(i).textName, integratedreport::section(i).caption,
            m_result.texts[std::size_t(i)]);
    add(u"txtdados"_s, u"&DADOS FINANCEIROS"_s, m_result.finances);
    return row;
}

QWidget *frmRelatorioInt::buttons()
{
    auto *row = new QWidget(this);
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addStretch();
    const auto add = [&](const QString &name, const QString &text, const QString &icon,
                         const std::function<void()> &run) {
        auto *button = new QPushButton(QIcon::fromTheme(icon), text, row);
        button->setObjectName(name);
        button->setAutoDefault(false);
        layout->addWidget(button);
        connect(button, &QPushButton::clicked, this, run);
    };
    const auto saved = [this] { return integratedreport::saved(m_result, m_list->tableSource()); };
    ExportTexts chooser = exportar::reportTexts();
    chooser.htmlTitle = u"Salvar relatório integrado em html"_s;
    add(u"cmdtxt"_s, u"Salvar em &txt"_s, u"text-plain"_s,
        [this, saved, chooser] { exportar::saveText(this, saved(), chooser); });
    add(u"cmdhtml"_s, u"Salvar em &html"_s, u"text-html"_s,
        [this, saved, chooser] { exportar::saveHtml(this, saved(), chooser); });
    add(u"cmdimprimir"_s, u"&Imprimir"_s, u"document-print"_s, [this] {
        exportar::print(this, integratedreport::printed(m_result, m_result.table), integratedreport::pages());
    });
    add(u"cmdsair"_s, u"&Sair"_s, u"window-close"_s, [this] { close(); });
    return row;
}
