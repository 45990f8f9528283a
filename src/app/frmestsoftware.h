#pragma once

#include "widgets/screen.h"

namespace Ui {
class frmEstSoftware;
}

/// Version, size of the database, last backup and maintenance.
class frmEstSoftware : public Screen
{
    Q_OBJECT

public:
    static frmEstSoftware *open(QWidget *parent);
    ~frmEstSoftware() override;

private:
    explicit frmEstSoftware(QWidget *parent);

    std::unique_ptr<Ui::frmEstSoftware> m_ui;
};
