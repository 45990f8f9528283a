#include "analysis/sectionpane.h"

#include "data/clock.h"
#include "lists/readrows.h"
#include "settings/database.h"
#include "widgets/dateedit.h"
#include "widgets/messages.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QInputDialog>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>

using namespace Qt::StringLiterals;
using namespace integratedreport;

SectionPane::SectionPane(const Section &section, QWidget *parent) : QWidget(parent), m_section(section)
{
    auto *layout = new QVBoxLayout(this);
    m_include = box(u"chkincluir"_s + section.suffix, u"I&ncluir no relatório: "_s + section.caption);
    layout->addWidget(m_include);
    addDates(layout);
    auto *lists = new QHBoxLayout;
    layout->addLayout(lists, 1);
    for (const NameList &list : section.names)
        addNames(lists, list);
    addStatus(layout);
}

QCheckBox *SectionPane::box(const QString &name, const QString &text)
{
    auto *made = new QCheckBox(text, this);
    made->setObjectName(name);
    made->setChecked(true);
    return made;
}

QRadioButton *SectionPane::option(QBoxLayout *layout, const QString &name, const QString &text)
{
    auto *made = new QRadioButton(text);
    made->setObjectName(name);
    layout->addWidget(made);
    return made;
}

void SectionPane::addDates(QBoxLayout *layout)
{
    const QDate today = programclock::today();
    auto *row = new QHBoxLayout;
    layout->addLayout(row);
    m_allDates = box(u"chkdata"_s + m_section.suffix, u"&Todas as datas"_s);
    row->addWidget(m_allDates);
    const auto date = [&](const QString &name, const QString &text, QDate shown) {
        auto *edit = new DateEdit(this);
        edit->setObjectName(name + m_section.suffix);
        edit->setDate(shown);
        edit->setMinimumWidth(edit->fontMetrics().horizontalAdvance(u"00/00/0000"_s) + 48); // and its button
        edit->setEnabled(false);
        auto *label = new QLabel(text, this);
        label->setBuddy(edit);
        row->addWidget(label);
        row->addWidget(edit);
        connect(m_allDates, &QCheckBox::toggled, edit, &QWidget::setDisabled);
        return edit;
    };
    m_first = date(u"cbodata1"_s, u"&De:"_s, QDate(today.year(), today.month(), 1));
    m_last = date(u"cbodata2"_s, u"&até:"_s, QDate(today.year(), today.month(), today.daysInMonth()));
    if (m_section.hasDueDate) {
        auto *group = new QWidget(this);
        auto *options = new QHBoxLayout(group);
        options->setContentsMargins(0, 0, 0, 0);
        option(options, u"optdata"_s + m_section.suffix, u"Por data de &cadastro"_s)->setChecked(true);
        m_byDue = option(options, u"optvenc"_s + m_section.suffix, u"Por &vencimento"_s);
        row->addWidget(group);
    }
    row->addStretch();
}

void SectionPane::addNames(QBoxLayout *layout, const NameList &list)
{
    auto *column = new QVBoxLayout;
    layout->addLayout(column);
    auto *all = box(list.box, list.all);
    auto *names = new QListWidget(this);
    names->setObjectName(list.list);
    names->setAccessibleName(list.caption);
    auto *add = new QPushButton(u"Adicionar..."_s, this);
    add->setObjectName(list.add);
    add->setAccessibleName(u"Adicionar: "_s + list.caption);
    auto *clear = new QPushButton(u"Limpar"_s, this);
    clear->setObjectName(list.clear);
    clear->setAccessibleName(u"Limpar: "_s + list.caption);
    for (QPushButton *button : {add, clear})
        button->setAutoDefault(false);
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(add);
    buttons->addWidget(clear);
    column->addWidget(new QLabel(list.caption, this));
    column->addWidget(all);
    column->addWidget(names, 1);
    column->addLayout(buttons);
    m_names.push_back({all, names});
    connect(add, &QPushButton::clicked, this, [this, &list, names, all] {
        const int before = names->count();
        pick(list, names);
        if (names->count() > before)
            all->setChecked(false);
    });
    connect(clear, &QPushButton::clicked, names, &QListWidget::clear);
}

void SectionPane::addStatus(QBoxLayout *layout)
{
    auto *group = new QWidget(this);
    auto *options = new QHBoxLayout(group);
    options->setContentsMargins(0, 0, 0, 0);
    options->addWidget(new QLabel(u"Estatus:"_s, group));
    option(options, u"opttudo"_s + m_section.suffix, u"Pendentes &e concluídos"_s)->setChecked(true);
    m_pending = option(options, u"optpendente"_s + m_section.suffix, u"Apenas &pendentes"_s);
    m_settled = option(options, u"optconcluido"_s + m_section.suffix, u"Apenas c&oncluídos"_s);
    options->addStretch();
    layout->addWidget(group);
}

void SectionPane::pick(const NameList &list, QListWidget *into)
{
    QStringList offered;
    if (!messages::guarded(this, messages::generalPrefix, [&] {
            offered = readrows::names(*openDatabase(), list.namesQuery, list.namesColumn);
        }))
        return;
    for (int i = 0; i < into->count(); ++i)
        offered.removeAll(into->item(i)->text());
    if (offered.isEmpty())
        messages::information(this, list.caption, u"Não há outros nomes para adicionar."_s);
    while (!offered.isEmpty()) {
        bool accepted = false;
        const QString name = QInputDialog::getItem(
            this, list.caption, u"Adicionar ao filtro (Cancelar termina):"_s, offered, 0, false, &accepted);
        if (!accepted || name.isEmpty())
            return;
        into->addItem(name);
        offered.removeAll(name);
    }
}

bool SectionPane::lacksDates() const
{
    return m_include->isChecked() && !m_allDates->isChecked() &&
           !(m_first->date().isValid() && m_last->date().isValid());
}

SectionChoices SectionPane::choices() const
{
    SectionChoices chosen;
    chosen.included = m_include->isChecked();
    chosen.allDates = m_allDates->isChecked();
    chosen.first = m_first->date();
    chosen.last = m_last->date();
    chosen.byDueDate = m_byDue && m_byDue->isChecked();
    chosen.status = m_pending->isChecked()   ? Status::Pending
                    : m_settled->isChecked() ? Status::Settled
                                             : Status::All;
    for (std::size_t i = 0; i < m_names.size(); ++i) {
        chosen.names[i].all = m_names[i].all->isChecked();
        for (int row = 0; row < m_names[i].names->count(); ++row)
            chosen.names[i].names << m_names[i].names->item(row)->text();
    }
    return chosen;
}
