#pragma once

#include "analysis/accountresults.h"
#include "reports/report.h"
#include "widgets/screen.h"

namespace Ui {
class frmRelacaoDesLuc;
}

/// Expenses against profits of every account, of today, a month, a year or from one day to another.
class frmRelacaoDesLuc : public Screen
{
    Q_OBJECT

public:
    static frmRelacaoDesLuc *open(QWidget *parent);
    ~frmRelacaoDesLuc() override;

private:
    explicit frmRelacaoDesLuc(QWidget *parent);
    void connectControls();
    ResultFilter filter() const;
    void ask();
    Report report() const;

    std::unique_ptr<Ui::frmRelacaoDesLuc> m_ui;
    QString m_filterText; ///< of what is shown
};
