#pragma once

#include "widgets/screen.h"

#include <QStringList>

#include <optional>

namespace Ui {
class frmDica;
}

/// The tip of the day, at the start and on demand.
class frmDica : public Screen
{
    Q_OBJECT

public:
    static frmDica *open(QWidget *parent);
    ~frmDica() override;

private:
    explicit frmDica(QWidget *parent);
    void showTip();
    void setShownAtStart(bool shown);

    std::unique_ptr<Ui::frmDica> m_ui;
    std::optional<QStringList> m_tips;
};
