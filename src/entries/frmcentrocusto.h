#pragma once

#include "entries/centres.h"
#include "widgets/screen.h"

namespace Ui {
class frmCentroCusto;
}

/// The chart of accounts of one side: its centres, and what the entries of each add up to. As the screen of
/// the profit centres its object name is frmCentroLucro. It stays open beside the others.
class frmCentroCusto : public Screen
{
    Q_OBJECT

public:
    static frmCentroCusto *openFor(const CentreSide &side, QWidget *parent);
    ~frmCentroCusto() override;

private:
    frmCentroCusto(const CentreSide &side, QWidget *parent);
    void connectControls();
    bool reloadList();
    bool reloadSummary();
    void showSummary();
    void refresh(const Change &change);
    QString selected() const;
    void allowCommands();
    /// Runs a command on the centres; afterwards the list shows what there is.
    bool change(const std::function<void(Connection &)> &work);
    bool refuseBlank(const QString &name);
    void add();
    void rename();
    void remove();

    std::unique_ptr<Ui::frmCentroCusto> m_ui;
    const CentreSide &m_side;
    std::vector<CentreLine> m_summary;
};
