#include "widgets/filterboxes.h"

#include "widgets/boxes.h"

#include <QComboBox>
#include <QRadioButton>
#include <QSignalBlocker>

using namespace Qt::StringLiterals;

namespace {

/// Shows `text`, in the spelling of the item where the box offers it; adds it where it does not.
void showIn(QComboBox *box, const QString &text)
{
    const QSignalBlocker blocker(box);
    const int offered = box->findText(text, Qt::MatchFixedString);
    if (offered >= 0)
        box->setCurrentIndex(offered);
    else
        boxes::choose(box, text);
}

} // namespace

void FilterBoxes::add(QComboBox *box, std::optional<settings::Key> key)
{
    m_choices.push_back({box, nullptr, nullptr, key, box->currentText()});
    connect(box, &QComboBox::currentTextChanged, this, &FilterBoxes::changed);
}

void FilterBoxes::add(QRadioButton *yes, QRadioButton *no, const settings::Key &key)
{
    m_choices.push_back({nullptr, yes, no, key, {}});
    m_choices.back().accepted = shown(m_choices.back());
    connect(yes, &QRadioButton::toggled, this, &FilterBoxes::changed);
}

QString FilterBoxes::shown(const Choice &choice)
{
    if (choice.box)
        return choice.box->currentText();
    return choice.yes->isChecked() ? u"true"_s : u"false"_s;
}

void FilterBoxes::show(const Choice &choice, const QString &text)
{
    if (choice.box) {
        showIn(choice.box, text);
        return;
    }
    const QSignalBlocker blocker(choice.yes);
    (text.compare(u"true"_s, Qt::CaseInsensitive) == 0 ? choice.yes : choice.no)->setChecked(true);
}

void FilterBoxes::restore()
{
    for (Choice &choice : m_choices) {
        if (choice.key)
            show(choice, settings::value(*choice.key));
        choice.accepted = shown(choice);
    }
}

void FilterBoxes::reset()
{
    for (Choice &choice : m_choices) {
        if (choice.box)
            showIn(choice.box, choice.box->itemText(0));
        choice.accepted = shown(choice);
    }
}

void FilterBoxes::accept()
{
    for (Choice &choice : m_choices)
        choice.accepted = shown(choice);
    std::vector<std::pair<settings::Key, QString>> kept;
    for (const Choice &choice : m_choices)
        if (choice.key)
            kept.emplace_back(*choice.key, choice.accepted);
    settings::setValues(kept);
}

void FilterBoxes::revert()
{
    for (const Choice &choice : m_choices)
        show(choice, choice.accepted);
}

void FilterBoxes::refill(QComboBox *box, const QString &all, const QStringList &values)
{
    QStringList items{all};
    for (const QString &value : values)
        if (!value.trimmed().isEmpty())
            items << value;
    const QString chosen = box->currentText();
    const QSignalBlocker blocker(box);
    boxes::refill(box, items);
    // The choice may have been kept, or typed by another hand, in other letter case than the rows'.
    const int offered = box->findText(chosen, Qt::MatchFixedString);
    if (box->currentIndex() >= items.size() && offered < items.size()) {
        box->removeItem(box->currentIndex());
        box->setCurrentIndex(offered);
    }
    if (box->currentIndex() < 0)
        showIn(box, all);
}
