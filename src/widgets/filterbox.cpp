#include "widgets/filterbox.h"

#include "widgets/boxes.h"

#include <QSignalBlocker>

namespace filterbox {

void show(QComboBox *box, const QString &text)
{
    const QSignalBlocker blocker(box);
    const int offered = box->findText(text, Qt::MatchFixedString);
    if (offered >= 0)
        box->setCurrentIndex(offered);
    else
        boxes::choose(box, text);
}

void restore(QComboBox *box, const settings::Key &key)
{
    show(box, settings::value(key));
}

void refill(QComboBox *box, const QString &all, const QStringList &values)
{
    QStringList items{all};
    for (const QString &value : values)
        if (!value.trimmed().isEmpty())
            items << value;
    boxes::refill(box, items);
    if (box->currentIndex() < 0)
        show(box, all);
}

} // namespace filterbox
