#pragma once

#include "settings/settings.h"

#include <QObject>

#include <optional>
#include <vector>

class QComboBox;
class QRadioButton;

/// The choices over a list. What is chosen takes effect at once; when that fails the choices go back to those
/// that the list shows, and when it succeeds they are kept in the settings.
class FilterBoxes : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// A box whose choice is kept under `key`; without one it is not kept.
    void add(QComboBox *box, std::optional<settings::Key> key = {});
    /// A choice between two, kept as "true" while `yes` is marked, else "false".
    void add(QRadioButton *yes, QRadioButton *no, const settings::Key &key);

    /// Shows the choices that are kept, in the spelling of the items where a box offers them.
    void restore();
    /// Shows the first choice of every box.
    void reset();
    /// The list shows what was chosen. Throws Error when that cannot be kept.
    void accept();
    /// Shows again what the list shows.
    void revert();

    /// Offers `all` and then `values` (blank ones left out); the choice stays.
    static void refill(QComboBox *box, const QString &all, const QStringList &values);

Q_SIGNALS:
    /// The user chose.
    void changed();

private:
    struct Choice
    {
        QComboBox *box;
        QRadioButton *yes, *no; ///< in place of a box
        std::optional<settings::Key> key;
        QString accepted;
    };

    static QString shown(const Choice &choice);
    static void show(const Choice &choice, const QString &text);

    std::vector<Choice> m_choices;
};
