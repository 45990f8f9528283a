#pragma once

#include "analysis/management.h"
#include "reports/report.h"

#include <QWidget>

#include <memory>

namespace Ui {
class ManagementPane;
}

/// One half of the management screen: what is asked for, and the entries that were found.
class ManagementPane : public QWidget
{
    Q_OBJECT

public:
    ManagementPane(const ManagementKind &kind, QWidget *parent);
    ~ManagementPane() override;

    /// What the boxes offer.
    void offer(Connection &connection);

private:
    void nameControls();
    void connectControls();
    ManagementFilter filter() const;
    void ask();
    Report report() const;

    std::unique_ptr<Ui::ManagementPane> m_ui;
    const ManagementKind &m_kind;
    QString m_filterText; ///< of what is shown
};
