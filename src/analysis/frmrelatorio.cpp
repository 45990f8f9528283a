#include "analysis/frmrelatorio.h"
#include "ui_frmrelatorio.h"

#include "entries/opencommands.h"
#include "widgets/background.h"
#include "widgets/listview.h"

#include <QLabel>

using namespace Qt::StringLiterals;

namespace {

/// The table as it is shown; one that holds its own rows is not copied.
std::shared_ptr<const StoredTable> stored(const std::shared_ptr<const TableSource> &table)
{
    if (auto own = std::dynamic_pointer_cast<const StoredTable>(table))
        return own;
    std::vector<ListColumn> columns;
    for (int i = 0; i < table->columnCount(); ++i)
        columns.push_back({QString::number(i), table->heading(i), table->kind(i)});
    auto copy = std::make_shared<StoredTable>(std::move(columns));
    std::vector<std::string> buffers(static_cast<std::size_t>(table->columnCount()));
    std::vector<std::string_view> cells(buffers.size());
    for (int row = 0; row < table->rowCount(); ++row) {
        for (std::size_t i = 0; i < cells.size(); ++i)
            cells[i] = table->utf8(row, int(i), buffers[i]);
        copy->append(cells);
    }
    return copy;
}

void showText(QLabel *label, const QString &text)
{
    label->setText(text);
    label->setVisible(!text.isEmpty());
}

ExportTexts withTextFilter(const QString &filter)
{
    ExportTexts texts = exportar::reportTexts();
    texts.textFilter = filter;
    return texts;
}

} // namespace

ReportScreen reportscreen::general()
{
    return {u"frmRelatorio"_s, exportar::reportTexts(), {}};
}

ReportScreen reportscreen::movement()
{
    return {u"frmMovimento"_s, withTextFilter(u"Arquivo de texto(*.txt)"_s), modimpressao::movementPages()};
}

frmRelatorio::frmRelatorio(Report report, ReportScreen screen, QWidget *parent)
    : QDialog(parent, Qt::Dialog | Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint),
      m_ui(std::make_unique<Ui::frmRelatorio>()),
      m_report(std::move(report)),
      m_screen(std::move(screen))
{
    m_ui->setupUi(this);
    setObjectName(m_screen.name);
    setAttribute(Qt::WA_DeleteOnClose);
    background::apply(this);
    for (std::size_t i = 0; i < m_report.tables.size(); ++i)
        addList(m_report.tables[i], m_report.tableTitles.value(qsizetype(i)));
    m_report.tables.clear();
    m_ui->divisor->setVisible(!m_lists.empty());
    if (m_lists.empty()) { // the totals are all there is
        m_ui->txtestatisticas->setMaximumHeight(QWIDGETSIZE_MAX);
        m_ui->layout->setStretchFactor(m_ui->txtestatisticas, 1);
        resize(width() / 2, height() / 2);
    }
    showTexts();
    connect(m_ui->cmdtxt, &QPushButton::clicked, this,
            [this] { exportar::saveText(this, shown(), m_screen.exports); });
    connect(m_ui->cmdhtml, &QPushButton::clicked, this,
            [this] { exportar::saveHtml(this, shown(), m_screen.exports); });
    connect(m_ui->cmdimprimir, &QPushButton::clicked, this,
            [this] { exportar::print(this, shown(), m_screen.pages); });
    connect(m_ui->cmdsair, &QPushButton::clicked, this, &QDialog::close);
}

frmRelatorio::~frmRelatorio() = default;

frmRelatorio *frmRelatorio::open(Report report, QWidget *parent, ReportScreen screen)
{
    auto *shown = new frmRelatorio(std::move(report), std::move(screen), parent);
    shown->show();
    return shown;
}

void frmRelatorio::addList(const std::shared_ptr<const TableSource> &table, const QString &title)
{
    auto *group = new QWidget(m_ui->divisor);
    auto *layout = new QVBoxLayout(group);
    layout->setContentsMargins(0, 0, 0, 0);
    auto *list = new ListView(group);
    list->setObjectName(m_lists.empty() ? u"lstrelatorio"_s : u"lstrelatorio%1"_s.arg(m_lists.size() + 1));
    list->setAccessibleName(title.isEmpty() ? m_report.title : title);
    list->setEmptyText(u"Nenhum registro neste relatório"_s);
    list->setTable(stored(table));
    opencommands::openOnActivation(*list);
    if (!title.isEmpty())
        layout->addWidget(new QLabel(title, group));
    layout->addWidget(list);
    m_ui->divisor->addWidget(group);
    m_lists.push_back(list);
}

void frmRelatorio::showTexts()
{
    setWindowTitle(m_report.subtitle.isEmpty() ? m_report.title
                                               : m_report.title + u" - "_s + m_report.subtitle);
    showText(m_ui->lbltitulo, m_report.title);
    showText(m_ui->lblsubtitulo, m_report.subtitle);
    showText(m_ui->lblfiltro, m_report.filterText);
    QStringList totals = m_report.lines;
    if (!m_report.statistics.isEmpty())
        totals << m_report.statistics;
    m_ui->txtestatisticas->setPlainText(totals.join(u'\n'));
    m_ui->txtestatisticas->setVisible(!totals.isEmpty());
    m_ui->lblestatisticas->setVisible(!totals.isEmpty());
}

Report frmRelatorio::shown() const
{
    Report report = m_report;
    for (const ListView *list : m_lists)
        report.tables.push_back(list->tableSource());
    return report;
}
