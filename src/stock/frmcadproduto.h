#pragma once

#include "widgets/screen.h"

namespace Ui {
class frmcadproduto;
}

/// The product screen: creates a product, or changes one.
class frmcadproduto : public Screen
{
    Q_OBJECT

public:
    ~frmcadproduto() override;

    /// Shows an empty screen for a new product.
    static frmcadproduto *openNew(QWidget *parent);
    /// Shows the product; null, with a message, when it is no longer there or another file than the
    /// one with the serial `listed` is the database (0: any).
    static frmcadproduto *openEdit(const QString &name, QWidget *parent, quint64 listed = 0);

private:
    explicit frmcadproduto(QWidget *parent);
    void save();

    std::unique_ptr<Ui::frmcadproduto>
        m_ui; ///< lblnome holds the name of the product that is edited; empty for a new one
};
