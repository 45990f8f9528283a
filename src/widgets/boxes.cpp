#include "widgets/boxes.h"

#include <QComboBox>
#include <QSignalBlocker>

namespace boxes {

void refill(QComboBox *box, const QStringList &items)
{
    const QSignalBlocker blocker(box);
    const QString shown = box->currentText();
    box->clear();
    box->addItems(items);
    box->setCurrentIndex(-1);
    if (!shown.isEmpty())
        choose(box, shown);
}

void choose(QComboBox *box, const QString &text)
{
    if (box->isEditable()) {
        box->setCurrentText(text);
        return;
    }
    if (!text.isEmpty() && box->findText(text, Qt::MatchExactly) < 0)
        box->addItem(text);
    box->setCurrentIndex(box->findText(text, Qt::MatchExactly));
}

}
