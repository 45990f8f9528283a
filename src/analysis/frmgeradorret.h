#pragma once

#include "widgets/screen.h"

#include <array>

class SectionPane;

namespace Ui {
class frmGeradorRet;
}

/// The report generator: what the integrated report is to hold.
class frmGeradorRet : public Screen
{
    Q_OBJECT

public:
    ~frmGeradorRet() override;

    static frmGeradorRet *open(QWidget *parent);

private:
    explicit frmGeradorRet(QWidget *parent);
    void showReport();

    std::unique_ptr<Ui::frmGeradorRet> m_ui;
    std::array<SectionPane *, 3> m_sections;
};
