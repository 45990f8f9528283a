#pragma once

#include "agenda/appointments.h"
#include "widgets/screen.h"

namespace Ui {
class frmRetCompromisso;
}
struct ExportTexts;

/// The appointments between two dates, in a window of their own. They stay as they were read.
class frmRetCompromisso : public Screen
{
    Q_OBJECT

public:
    static frmRetCompromisso *open(const AppointmentDates &dates, QWidget *parent);
    ~frmRetCompromisso() override;

    /// Of every list of appointments.
    static const ExportTexts &exportTexts();

private:
    explicit frmRetCompromisso(QWidget *parent);
    bool read(const AppointmentDates &dates);

    std::unique_ptr<Ui::frmRetCompromisso> m_ui;
    appointments::Listing m_listing;
};
