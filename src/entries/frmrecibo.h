#pragma once

#include "entries/receipt.h"
#include "widgets/screen.h"

namespace Ui {
class frmRecibo;
}

/// Prints a receipt. Nothing of it is stored.
class frmRecibo : public Screen
{
    Q_OBJECT

public:
    static frmRecibo *open(QWidget *parent);
    /// Filled in from the entry with the code, which was read through the connection `file`; null, after a
    /// message, when it is no longer there.
    static frmRecibo *openOf(const Side &side, const QString &code, quint64 file, QWidget *parent);
    ~frmRecibo() override;

private:
    explicit frmRecibo(QWidget *parent);
    void fill(const Receipt &receipt);
    void print();

    std::unique_ptr<Ui::frmRecibo> m_ui;
};
