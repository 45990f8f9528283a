#include "analysis/frmestbanco.h"
#include "ui_frmestbanco.h"

#include "reports/listexportcommands.h"
#include "widgets/boxes.h"
#include "widgets/reading.h"

using namespace Qt::StringLiterals;

namespace {

const QString allAccounts = u"Todos os bancos"_s;

} // namespace

frmestbanco::frmestbanco(const BookPeriod &period, QWidget *parent)
    : Screen(parent, Qt::Dialog | Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint),
      m_ui(std::make_unique<Ui::frmestbanco>()),
      m_period(period)
{
    m_ui->setupUi(this);
    prepare();
    m_ui->lblperiodo->setText(bankbook::periodText(period));
    m_ui->lstdados->setEmptyText(u"Nenhum banco ou caixa cadastrado"_s);
    m_ui->dias->setVisible(period.first.has_value());
    m_ui->cboconta->addItem(allAccounts);
    connect(m_ui->cboconta, &QComboBox::currentTextChanged, this, &frmestbanco::showDays);
    connectExports(
        this, {m_ui->cmdimprimir, m_ui->cmdtxt, m_ui->cmdhtml}, [this] { return report(); },
        exportar::reportTexts());
    connect(m_ui->cmdsair, &QPushButton::clicked, this, &QDialog::close);
    connect(&Changes::instance(), &Changes::changed, this, [this](const Change &change) {
        const Subject shown[] = {Subject::Payables, Subject::Receivables, Subject::Movements,
                                 Subject::Accounts, Subject::Database};
        if (std::ranges::find(shown, change.subject) != std::end(shown))
            read();
    });
}

frmestbanco::~frmestbanco() = default;

frmestbanco *frmestbanco::open(const BookPeriod &period, QWidget *parent)
{
    auto screen = std::unique_ptr<frmestbanco>(new frmestbanco(period, parent));
    return screen->read() ? shown(std::move(screen)) : nullptr;
}

bool frmestbanco::read()
{
    std::vector<AccountBook> fresh;
    if (!reading::run(place(), u"Carregando estatística bancária"_s,
                      [&](Connection &connection, Progress &progress) {
                          fresh = bankbook::read(connection, m_period, &progress);
                      }))
        return false;
    m_books = std::move(fresh);
    QStringList names{allAccounts};
    for (const AccountBook &book : m_books)
        names << book.name;
    boxes::refill(m_ui->cboconta, names);
    m_ui->lstdados->setTable(bankbook::accountTable(m_books, m_period));
    m_ui->lbltotal->setText(bankbook::totals(m_books, m_period));
    showDays();
    return true;
}

void frmestbanco::showDays()
{
    const bool all = m_ui->cboconta->currentIndex() <= 0;
    m_ui->lstdias->setTable(
        bankbook::dayTable(m_books, all ? QString() : m_ui->cboconta->currentText(), m_period));
}

Report frmestbanco::report() const
{
    Report report{.title = windowTitle(),
                  .filterText = m_ui->lblperiodo->text(),
                  .tables = {m_ui->lstdados->tableSource()},
                  .statistics = m_ui->lbltotal->text(),
                  .textTitle = windowTitle() + u'\n' + m_ui->lblperiodo->text(),
                  .textStatistics = m_ui->lbltotal->text() + u'\n'};
    if (m_period.first) {
        report.tables.push_back(m_ui->lstdias->tableSource());
        report.tableTitles = {u"Contas:"_s, u"Saldo diário: "_s + m_ui->cboconta->currentText()};
    }
    return report;
}
