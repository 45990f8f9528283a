#include "analysis/dialogpane.h"

#include "analysis/frmrelatorio.h"
#include "data/clock.h"
#include "data/status.h"
#include "lists/readrows.h"
#include "widgets/dateedit.h"
#include "widgets/messages.h"
#include "widgets/reading.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

using namespace Qt::StringLiterals;
using namespace dialogreports;

namespace {

/// Two options side by side, the first one chosen; returns the second.
QRadioButton *addPair(QBoxLayout *layout, QWidget *parent, const std::pair<QString, QString> &first,
                      const std::pair<QString, QString> &second)
{
    auto *group = new QWidget(parent);
    auto *row = new QHBoxLayout(group);
    row->setContentsMargins(0, 0, 0, 0);
    QRadioButton *last = nullptr;
    for (const auto &[name, text] : {first, second}) {
        auto *option = new QRadioButton(text, group);
        option->setObjectName(name);
        option->setChecked(!last);
        row->addWidget(option);
        last = option;
    }
    row->addStretch();
    layout->addWidget(group);
    return last;
}

} // namespace

DialogDates::DialogDates(const QString &suffix, bool hasDueDate, bool mayBeOff, QWidget *parent)
    : QWidget(parent)
{
    const QDate today = programclock::today();
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    if (mayBeOff) {
        m_wanted = new QCheckBox(u"Filtrar por &data"_s, this);
        m_wanted->setObjectName(u"chkdata"_s + suffix);
        m_wanted->setChecked(true);
        row->addWidget(m_wanted);
    }
    const auto date = [&](const QString &name, const QString &text, QDate shown) {
        auto *edit = new DateEdit(this);
        edit->setObjectName(name + suffix);
        edit->setDate(shown);
        edit->setMinimumWidth(edit->fontMetrics().horizontalAdvance(u"00/00/0000"_s) + 48); // and its button
        auto *label = new QLabel(text, this);
        label->setBuddy(edit);
        row->addWidget(label);
        row->addWidget(edit);
        if (m_wanted)
            connect(m_wanted, &QCheckBox::toggled, edit, &QWidget::setEnabled);
        return edit;
    };
    m_first = date(u"cbodata1"_s, u"De:"_s, QDate(today.year(), today.month(), 1));
    m_last = date(u"cbodata2"_s, u"até:"_s, QDate(today.year(), today.month(), today.daysInMonth()));
    if (hasDueDate)
        m_byDue = addPair(row, this, {u"optdata"_s + suffix, u"Data de cadastro"_s},
                          {u"optvenc"_s + suffix, u"&Vencimento"_s});
    row->addStretch();
}

void DialogDates::into(Choices &choices) const
{
    choices.datesWanted = !m_wanted || m_wanted->isChecked();
    choices.first = m_first->date();
    choices.last = m_last->date();
    choices.byDueDate = m_byDue && m_byDue->isChecked();
}

DialogPane::DialogPane(const Page &page, QWidget *parent)
    : QWidget(parent), m_page(page), m_dates(new DialogDates(page.suffix, page.hasDueDate, true, this))
{
    auto *layout = new QVBoxLayout(this);
    if (page.rows == Rows::Stock)
        m_sales = addPair(layout, this, {u"optcompras"_s, u"&Compras (entradas)"_s},
                          {u"optvendas"_s, u"Ve&ndas (saídas)"_s});
    layout->addWidget(m_dates);
    auto *form = new QFormLayout;
    layout->addLayout(form);
    addNames(form);
    addChoices(form);
    layout->addStretch();
    auto *show = new QPushButton(u"&Mostrar na tela"_s, this);
    show->setObjectName(u"cmdnatela"_s + page.suffix);
    show->setAutoDefault(false);
    layout->addWidget(show, 0, Qt::AlignRight);
    connect(show, &QPushButton::clicked, this, &DialogPane::showReport);
}

void DialogPane::addNames(QFormLayout *form)
{
    for (const NameFilter &filter : m_page.names) {
        auto *box = new QComboBox(this);
        box->setObjectName(filter.control + m_page.suffix);
        box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        box->setMinimumContentsLength(30);
        form->addRow(
            m_page.rows == Rows::Stock && m_names.empty() ? u"&Fornecedor / cliente:"_s : filter.label, box);
        m_names.push_back(box);
    }
}

void DialogPane::addChoices(QFormLayout *form)
{
    m_status = new QComboBox(this);
    m_status->setObjectName(u"cboestatus"_s + m_page.suffix);
    m_status->addItem(u"Todos"_s);
    for (const QString &word : status::words())
        m_status->addItem(word, word);
    form->addRow(u"E&status:"_s, m_status);
    m_order = new QComboBox(this);
    m_order->setObjectName(u"cboordem"_s + m_page.suffix);
    for (const Ordering &ordering : m_page.orderings)
        m_order->addItem(ordering.caption);
    form->addRow(u"&Ordenar por:"_s, m_order);
    auto *directions = new QHBoxLayout;
    m_descending = addPair(directions, this, {u"optasc"_s + m_page.suffix, u"Crescente"_s},
                           {u"optdesc"_s + m_page.suffix, u"Decrescente"_s});
    form->addRow(QString(), directions);
}

void DialogPane::fill(Connection &connection)
{
    for (std::size_t i = 0; i < m_names.size(); ++i) {
        m_names[i]->addItem(u"Todos"_s);
        QStringList names;
        if (m_sales && i == 0)
            names = readrows::names(connection, page(Kind::Sales).names[0].query, u"nome"_s);
        names = readrows::names(connection, m_page.names[i].query, m_page.names[i].column) + names;
        names.removeDuplicates();
        for (const QString &name : names)
            m_names[i]->addItem(name, name);
    }
}

const Page &DialogPane::shownPage() const
{
    return m_sales && m_sales->isChecked() ? page(Kind::Sales) : m_page;
}

Choices DialogPane::choices() const
{
    Choices chosen;
    m_dates->into(chosen);
    chosen.status = m_status->currentData().toString();
    for (const QComboBox *box : m_names)
        chosen.names << box->currentData().toString();
    chosen.ordering = m_order->currentIndex();
    chosen.descending = m_descending->isChecked();
    return chosen;
}

void DialogPane::showReport()
{
    const Choices chosen = choices();
    if (const QString text = problem(chosen); !text.isEmpty()) {
        messages::exclamation(this, u"Erro"_s, text);
        return;
    }
    dialogcommands::show(window(), nothingFound.toString(), [&](Connection &connection, Progress &progress) {
        return read(connection, shownPage(), chosen, &progress);
    });
}

void dialogcommands::show(QWidget *over, const QString &nothingFound,
                          const std::function<std::optional<Report>(Connection &, Progress &)> &read)
{
    std::optional<Report> report;
    if (!reading::run(over, u"Carregando relatório"_s, [&](Connection &connection, Progress &progress) {
            report = read(connection, progress);
        }))
        return;
    if (report)
        frmRelatorio::open(std::move(*report), over);
    else
        messages::information(over, u"Info"_s, nothingFound);
}
