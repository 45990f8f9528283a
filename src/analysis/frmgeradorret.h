#pragma once

#include "widgets/screen.h"

#include <array>

class SectionPane;

/// The report generator: what the integrated report is to hold.
class frmGeradorRet : public Screen
{
    Q_OBJECT

public:
    static frmGeradorRet *open(QWidget *parent);

private:
    explicit frmGeradorRet(QWidget *parent);
    void showReport();

    std::array<SectionPane *, 3> m_sections;
};
