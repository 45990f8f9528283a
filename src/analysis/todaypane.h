#pragma once

#include "analysis/today.h"
#include "widgets/slicedwork.h"

#include <QWidget>

#include <memory>

namespace Ui {
class TodayPane;
}
class AccountPane;

/// The first page of the main window: what is overdue, due today and soon, the balances, the cash of the next
/// months and how the month goes. It follows what is announced while it is in front, and is read when it
/// comes to the front otherwise.
class TodayPane : public QWidget
{
    Q_OBJECT

public:
    /// The balances are those of `accounts`.
    TodayPane(AccountPane &accounts, QWidget *parent);
    ~TodayPane() override;

    /// Somebody is in, or everything is to be read anew: reads it now, or when it is looked at. Until the
    /// first call nothing is read.
    void readAll();
    /// Something was written: reads it now, or when it is looked at.
    void follow(const Change &change);
    /// While one of its own commands writes: what is announced then does not bring another tab to the front.
    bool isCommanding() const { return m_isCommanding; }
    bool isLoading() const { return m_work.isRunning(); }

Q_SIGNALS:
    /// The user wants the automatic copies.
    void copiesWanted();

protected:
    void showEvent(QShowEvent *event) override;

private:
    void connectControls();
    void refresh();
    void showFacts();
    void showBalances();
    void showProjection();
    void open(int row);
    void settle();

    std::unique_ptr<Ui::TodayPane> m_ui;
    AccountPane &m_accounts;
    TodayFacts m_facts;
    SlicedWork m_work;
    bool m_isStale = true;
    bool m_mayRead = false;
    bool m_isCommanding = false;
};
