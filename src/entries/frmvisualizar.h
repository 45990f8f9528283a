#pragma once

#include "entries/periodview.h"
#include "widgets/screen.h"

#include <memory>

namespace Ui {
class frmVisualizar;
}
class ListFeed;

/// The entries or bank movements of today, this month or this year, to be read, printed and exported. The
/// list follows changes of the data. Its pop-up menu chooses the order.
class frmVisualizar : public Screen
{
    Q_OBJECT

public:
    /// Shows the view; null, with a message, when the data cannot be read.
    static frmVisualizar *open(const ViewKind &kind, ViewPeriod period, QWidget *parent);
    ~frmVisualizar() override;

private:
    frmVisualizar(const ViewKind &kind, ViewPeriod period, QWidget *parent);
    void makeExports();
    void makeMenu();
    bool reload();
    void showTotals();

    std::unique_ptr<Ui::frmVisualizar> m_ui;
    const ViewKind &m_kind;
    ViewPeriod m_period; ///< of the command that opened the view
    ListFeed *m_feed;
};
