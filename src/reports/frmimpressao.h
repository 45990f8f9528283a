#pragma once

#include "lists/pagedocument.h"

#include <QDialog>

#include <memory>

class DocumentPages;
class QPrinter;
class QPrintPreviewWidget;

namespace Ui {
class frmimpressao;
}

/// Shows the pages of a document before they are printed or saved as PDF. Only the first pages of a long
/// document are shown, for a preview keeps all of its pages in memory.
class frmimpressao : public QDialog
{
    Q_OBJECT

public:
    /// Throws Error::Kind::Data when the paper has no room for the document.
    explicit frmimpressao(PageDocument document, QWidget *parent = nullptr);
    ~frmimpressao() override;

private:
    void connectControls();
    void paintPreview();
    void setLandscape(bool on);
    void updateControls();
    void print();
    void savePdf();

    std::unique_ptr<Ui::frmimpressao> m_ui;
    std::unique_ptr<DocumentPages> m_pages;
    std::unique_ptr<QPrinter> m_printer; ///< of the preview; holds the paper
    QPrintPreviewWidget *m_preview;
};
