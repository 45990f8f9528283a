#pragma once

#include <QDate>
#include <QLineEdit>

/// A date typed as "dd/mm/yyyy" (the slashes appear by themselves; "5/3" and "050326" are completed on
/// leaving) or picked from a calendar opened with F4, Alt+Down or the button in the field; Up and Down move
/// by a day. May be empty. Text that is no date stays and is marked.
class DateEdit : public QLineEdit
{
    Q_OBJECT
    /// A year typed with two digits belongs to a date that is not in the future, as a birth date is not;
    /// otherwise it is one of this century.
    Q_PROPERTY(bool inPast READ isInPast WRITE setInPast)

public:
    explicit DateEdit(QWidget *parent = nullptr);

    /// What the text says, completed if need be; no date when the field is empty or its text is none.
    QDate date() const;
    /// The date as "dd/mm/yyyy", completed if need be; text that is no date as it stands.
    QString dateText() const;
    void setDate(QDate date);
    bool isInPast() const { return m_inPast; }
    void setInPast(bool inPast) { m_inPast = inPast; }
    void openCalendar();

Q_SIGNALS:
    /// Around the time the drop-down calendar is shown.
    void calendarOpening();
    void calendarClosed();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool acceptsTyped(QChar typed);
    void moveByDays(int days);
    void complete();
    void mark(bool wrong);

    QString m_hint; ///< the screen's own tool tip, while the field is marked
    bool m_marked = false;
    bool m_inPast = false;
};
