#include "widgets/boxes.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QCompleter>
#include <QKeyEvent>
#include <QRegularExpression>
#include <QSignalBlocker>
#include <QSortFilterProxyModel>

namespace {

bool isEnter(const QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return false;
    const int key = static_cast<const QKeyEvent *>(event)->key();
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

/// Ignores letter case when it offers, and keeps it for the box, which would put an item in place of a typed
/// text that differs from it in letter case only if its completer ignored that.
class Offers : public QCompleter
{
public:
    explicit Offers(QComboBox *box) : QCompleter(box), m_beginning(new QSortFilterProxyModel(this))
    {
        m_beginning->setSourceModel(box->model());
        setModel(m_beginning);
    }

    QStringList splitPath(const QString &typed) const override
    {
        m_beginning->setFilterRegularExpression(QRegularExpression(
            u'^' + QRegularExpression::escape(typed), QRegularExpression::CaseInsensitiveOption));
        return {QString()};
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (!isEnter(event) || watched != popup() || !popup()->isVisible())
            return QCompleter::eventFilter(watched, event);
        const auto *key = static_cast<QKeyEvent *>(event);
        QKeyEvent passedOn(QEvent::KeyPress, key->key(), key->modifiers(), {}, key->isAutoRepeat());
        const bool handled = QCompleter::eventFilter(watched, event);
        QCoreApplication::sendEvent(widget(), &passedOn);
        return handled;
    }

private:
    QSortFilterProxyModel *m_beginning;
};

} // namespace

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

void offerWhileTyping(QComboBox *box)
{
    box->setCompleter(new Offers(box));
}

void suggest(QLineEdit *field, const QStringList &names)
{
    auto *offers = new QCompleter(names, field);
    offers->setCaseSensitivity(Qt::CaseInsensitive);
    offers->setFilterMode(Qt::MatchContains);
    field->setCompleter(offers);
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
