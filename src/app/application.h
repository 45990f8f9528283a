#pragma once

#include <QApplication>

/// The program's application: an error that nothing else caught is shown, and the program goes on with what
/// is typed in its screens.
class Application : public QApplication
{
    Q_OBJECT

public:
    using QApplication::QApplication;

    bool notify(QObject *receiver, QEvent *event) override;
};
