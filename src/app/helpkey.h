#pragma once

#include <QObject>

class QWidget;

/// F1 in a screen opens the manual where it tells of that screen. In the main window it is a command's key.
class HelpKey : public QObject
{
    Q_OBJECT

public:
    explicit HelpKey(QWidget *window);

    /// The manual's section on a screen, by the name of its class: "agenda"; empty for one that it does not
    /// tell of.
    static QString topic(const QString &screen);

protected:
    bool eventFilter(QObject *object, QEvent *event) override;
};
