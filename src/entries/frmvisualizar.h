#pragma once

#include "entries/periodview.h"

#include <QDialog>

#include <memory>

namespace Ui {
class frmVisualizar;
}
namespace settings {
struct Key;
}

/// The entries or bank movements of today, this month or this year, to be read, printed and exported. The
/// list follows changes of the data. Its pop-up menu chooses the settings that the views read: the order, and
/// the limit of bank views.
class frmVisualizar : public QDialog
{
    Q_OBJECT

public:
    /// Shows the view; null, with a message, when the data cannot be read.
    static frmVisualizar *open(const ViewKind &kind, ViewPeriod period, QWidget *parent);
    ~frmVisualizar() override;

private:
    struct Choice
    {
        QString name, text, value;
    };

    frmVisualizar(const ViewKind &kind, ViewPeriod period, QWidget *parent);
    void connectExports();
    void makeMenu();
    void addChoices(const settings::Key &key, const std::vector<Choice> &choices);
    bool reload();

    std::unique_ptr<Ui::frmVisualizar> m_ui;
    const ViewKind &m_kind;
    ViewPeriod m_period; ///< of the command that opened the view
};
