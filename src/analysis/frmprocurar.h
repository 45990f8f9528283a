#pragma once

#include "lists/tablesource.h"
#include "widgets/screen.h"
#include "widgets/slicedwork.h"

class GlobalSearch;
class QMainWindow;

namespace Ui {
class frmProcurar;
}

/// Finds words anywhere in the business, and opens what was found.
class frmProcurar : public Screen
{
    Q_OBJECT

public:
    /// Looks for the text at once, if there is any.
    static frmProcurar *open(QWidget *parent, const QString &text = {});
    ~frmProcurar() override;

private:
    explicit frmProcurar(QWidget *parent);
    void search();
    void showFound(const GlobalSearch &search);
    void openRow(int row);

    std::unique_ptr<Ui::frmProcurar> m_ui;
    QString m_searched; ///< what was looked for last
    SlicedWork m_work;
};
