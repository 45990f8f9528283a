#pragma once

#include "entries/centres.h"

#include <QDialog>

#include <memory>

namespace Ui {
class frmCentroCusto;
}

/// The chart of accounts of one side: its centres, and what the entries of each add up to. As the screen of
/// the profit centres its object name is frmCentroLucro. It stays open beside the others and announces the
/// side's Subject.
class frmCentroCusto : public QDialog
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
    void add();
    void rename();
    void remove();

    std::unique_ptr<Ui::frmCentroCusto> m_ui;
    const CentreSide &m_side;
    std::vector<CentreLine> m_summary;
};
