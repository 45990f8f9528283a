#pragma once

#include <QDate>
#include <QLineEdit>

/// A date typed as "dd/mm/yyyy" (the slashes appear by themselves; "5/3" and "050326" are completed on leaving) or picked
/// from a calendar opened with F4, Alt+Down or the button in the field. May be empty.
class DateEdit : public QLineEdit
{
    Q_OBJECT

public:
    explicit DateEdit(QWidget *parent = nullptr);

    /// No date when the field is empty or its text is none.
    QDate date() const;
    void setDate(QDate date);
    void openCalendar();

Q_SIGNALS:
    /// Around the time the drop-down calendar is shown.
    void calendarOpening();
    void calendarClosed();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
};
