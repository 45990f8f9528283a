#pragma once

#include "analysis/dialogreports.h"

#include <QWidget>

#include <functional>

class DateEdit;
class QBoxLayout;
class QCheckBox;
class QComboBox;
class QFormLayout;
class QRadioButton;

/// The dates of a report dialog and the date column that they filter.
class DialogDates : public QWidget
{
    Q_OBJECT

public:
    /// Object names end in `suffix`. With `mayBeOff` a box says whether dates are wanted.
    DialogDates(const QString &suffix, bool hasDueDate, bool mayBeOff, QWidget *parent);
    void into(dialogreports::Choices &choices) const;

private:
    QCheckBox *m_wanted = nullptr;
    DateEdit *m_first, *m_last;
    QRadioButton *m_byDue = nullptr;
};

/// One page of `frmConfRelatorio`.
class DialogPane : public QWidget
{
    Q_OBJECT

public:
    DialogPane(const dialogreports::Page &page, QWidget *parent);
    /// Fills the boxes. Throws Error.
    void fill(Connection &connection);

private:
    void addNames(QFormLayout *form);
    void addChoices(QFormLayout *form);
    const dialogreports::Page &shownPage() const;
    dialogreports::Choices choices() const;
    void showReport();

    const dialogreports::Page &m_page;
    DialogDates *m_dates;
    std::vector<QComboBox *> m_names;
    QComboBox *m_status, *m_order;
    QRadioButton *m_descending, *m_sales = nullptr;
};

namespace dialogcommands {

/// Shows the report that `read` makes, or tells that nothing was found.
void show(QWidget *over, const QString &nothingFound,
          const std::function<std::optional<Report>(Connection &, Progress &)> &read);

} // namespace dialogcommands
