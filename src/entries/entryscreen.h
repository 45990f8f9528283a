#pragma once

#include "entries/side.h"
#include "widgets/screen.h"

#include <QStringList>

class DateEdit;
class QAbstractButton;
class QComboBox;

/// What the screens that enter payables and receivables share: they stay above the main window, their boxes
/// offer the same names and follow changes made elsewhere.
class EntryScreen : public Screen
{
    Q_OBJECT

protected:
    /// The controls that every such screen has; `status` and `product` may be
    /// null.
    struct Controls
    {
        QComboBox *status, *account, *contact, *description, *currency, *product;
        DateEdit *date;
        QAbstractButton *cancel;
    };

    EntryScreen(const Side &side, QWidget *parent);
    /// Prepares the screen; called once, when its controls exist.
    void setUp(const Controls &controls);
    /// Fills the boxes and follows changes from now on. False, with a message, when the names cannot be read.
    bool fillBoxes();
    /// Says which required fields are empty; false when none is.
    bool refuseBlank(const QStringList &fields);
    /// Steps back from the topmost band while the field shows its calendar.
    void stepBackFor(DateEdit *field);
    void changeEvent(QEvent *event) override;

    const Side &m_side;

private:
    void refill(const Change &change);

    Controls m_controls{};
};
