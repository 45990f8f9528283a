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

void refillTakingNew(QComboBox *box, const QStringList &items)
{
    QStringList added = items;
    for (int i = 0; i < box->count(); ++i)
        added.removeOne(box->itemText(i));
    refill(box, items);
    if (box->currentText().isEmpty() && added.size() == 1)
        box->setCurrentIndex(int(items.indexOf(added.constFirst())));
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

} // namespace boxes
