#pragma once

#include "entries/entryscreen.h"
#include "entries/regular.h"

namespace Ui {
class frmCadRegular;
}

/// Adds or changes a rule for entries that come again and again.
class frmCadRegular : public EntryScreen
{
    Q_OBJECT

public:
    static frmCadRegular *openNew(const Side &side, QWidget *parent);
    /// Null, after a message, when the rule is no longer there. `listed` is the file of the list that named
    /// it.
    static frmCadRegular *openEdit(qint64 code, QWidget *parent, quint64 listed);
    ~frmCadRegular() override;

private:
    frmCadRegular(const Side &side, qint64 code, QWidget *parent);
    void fill(const RegularForm &form);
    RegularForm form() const;
    void save();

    std::unique_ptr<Ui::frmCadRegular> m_ui;
    qint64 m_code; ///< 0 for a new rule
};
