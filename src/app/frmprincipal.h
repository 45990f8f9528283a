#pragma once

#include "app/daywatch.h"
#include "data/changes.h"

#include <QMainWindow>
#include <QTimer>

#include <memory>

namespace Ui {
class frmPrincipal;
}
class AccessCommands;
class MainTabs;
class QLabel;
class SwitchCommands;

/// The main window: tabs over the data, menus and toolbar.
class frmPrincipal : public QMainWindow
{
    Q_OBJECT

public:
    explicit frmPrincipal(QWidget *parent = nullptr);
    ~frmPrincipal() override;

    /// The start-up sequence; the window is on screen already.
    void start();

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void makeTabs();
    void connectCommands();
    void dataChanged(const Change &change);
    void showDate();
    void alertDue();
    void postRegulars();
    void reloadAll();
    void tryToOpen();
    void applySettings();

    std::unique_ptr<Ui::frmPrincipal> m_ui;
    MainTabs *m_tabs;
    AccessCommands *m_access;
    SwitchCommands *m_switches;
    QLabel *m_welcome;
    DayWatch m_day{this};
    QTimer m_tryAgain{this};
};
