#pragma once

#include "agenda/appointments.h"
#include "widgets/screen.h"

namespace Ui {
class frmCompromisso;
}

/// The appointment book: all appointments, or those between two dates, with the days that remain.
class frmCompromisso : public Screen
{
    Q_OBJECT

public:
    static frmCompromisso *open(QWidget *parent);
    ~frmCompromisso() override;

private:
    explicit frmCompromisso(QWidget *parent);
    void connectControls();
    /// Reads the appointments of `dates`; when that fails, what was shown stays.
    bool showDates(const std::optional<AppointmentDates> &dates);
    /// The dates typed; nothing, after a message, when one is missing.
    std::optional<AppointmentDates> typedDates();
    void edit();
    void remove();
    QString selectedTitle();

    std::unique_ptr<Ui::frmCompromisso> m_ui;
    std::optional<AppointmentDates> m_dates;
    appointments::Listing m_listing;
};
