#pragma once

#include "analysis/integratedreport.h"

#include <QWidget>

#include <vector>

class DateEdit;
class QBoxLayout;
class QCheckBox;
class QListWidget;
class QRadioButton;

/// The choices of one section of the integrated report.
class SectionPane : public QWidget
{
    Q_OBJECT

public:
    SectionPane(const integratedreport::Section &section, QWidget *parent);

    integratedreport::SectionChoices choices() const;
    /// Whether days are wanted that are not given.
    bool lacksDates() const;

private:
    void addDates(QBoxLayout *layout);
    void addNames(QBoxLayout *layout, const integratedreport::NameList &list);
    void addStatus(QBoxLayout *layout);
    QCheckBox *box(const QString &name, const QString &text);
    QRadioButton *option(QBoxLayout *layout, const QString &name, const QString &text);
    void pick(const integratedreport::NameList &list, QListWidget *into);

    struct Chosen
    {
        QCheckBox *all;
        QListWidget *names;
    };

    const integratedreport::Section &m_section;
    QCheckBox *m_include, *m_allDates;
    DateEdit *m_first, *m_last;
    QRadioButton *m_byDue = nullptr, *m_pending = nullptr, *m_settled = nullptr;
    std::vector<Chosen> m_names;
};
