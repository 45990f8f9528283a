#pragma once

#include "widgets/screen.h"

namespace Ui {
class frmEstatisticas;
}

/// How large the database file is, and for how many days there have been entries.
class frmEstatisticas : public Screen
{
    Q_OBJECT

public:
    /// Null, after a message, when the entries cannot be read.
    static frmEstatisticas *open(QWidget *parent);
    ~frmEstatisticas() override;

private:
    explicit frmEstatisticas(QWidget *parent);

    std::unique_ptr<Ui::frmEstatisticas> m_ui;
};
