#pragma once

#include "widgets/screen.h"

namespace Ui {
class frmdatabanco;
}

/// Asks for the days of the bank statistics: a range (frmdatabanco), or an end (frmsaldodia).
class frmdatabanco : public Screen
{
    Q_OBJECT

public:
    enum class Asks { Range, End };

    static frmdatabanco *open(Asks asks, QWidget *parent);
    ~frmdatabanco() override;

private:
    frmdatabanco(Asks asks, QWidget *parent);
    void showStatistics();

    std::unique_ptr<Ui::frmdatabanco> m_ui;
    Asks m_asks;
};
