#pragma once

#include <QDialog>

#include <memory>

namespace Ui {
class frmcadproduto;
}

/// The product screen: creates a product, or changes one. Announces Subject::Products after saving.
class frmcadproduto : public QDialog
{
    Q_OBJECT

public:
    ~frmcadproduto() override;

    /// Shows an empty screen for a new product.
    static frmcadproduto *openNew(QWidget *parent);
    /// Shows the product; null, with a message, when it is no longer there.
    static frmcadproduto *openEdit(const QString &name, QWidget *parent);

private:
    explicit frmcadproduto(QWidget *parent);
    void save();

    std::unique_ptr<Ui::frmcadproduto>
        m_ui; ///< lblnome holds the name of the product that is edited; empty for a new one
};
