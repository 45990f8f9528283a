#pragma once

#include "stock/labels.h"

#include <QDialog>
#include <QPrinter>

#include <memory>

namespace Ui {
class frmConfEtiqueta;
}
class QPrintPreviewWidget;

/// The label screen: lays out the fields of an address label, shows the first page and prints the labels of
/// all contacts of a query, or saves them as PDF.
class frmConfEtiqueta : public QDialog
{
    Q_OBJECT

public:
    /// `query` is a `SELECT *` on clients or suppliers. Null, with a message, when the layout cannot be read.
    static frmConfEtiqueta *open(const QString &query, QWidget *parent);
    ~frmConfEtiqueta() override;

protected:
    void reject() override;

private:
    frmConfEtiqueta(const QString &query, QWidget *parent);
    void showFields(const std::vector<LabelField> &fields);
    void addField(const LabelField &field);
    std::vector<LabelField> fields() const;
    void fieldsEdited();
    void removeField();
    /// Throws Error.
    std::vector<std::vector<LabelText>> sheets(int maxPages) const;
    void paintPreview();
    bool save();
    void print();
    void savePdf();

    std::unique_ptr<Ui::frmConfEtiqueta> m_ui;
    QString m_query;
    QPrinter m_previewPrinter;
    QPrintPreviewWidget *m_preview;
    bool m_edited = false;
};
