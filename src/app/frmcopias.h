#pragma once

#include "settings/autobackup.h"
#include "widgets/screen.h"

namespace Ui {
class frmCopias;
}

/// The automatic copies of the database: whether and where they are made, what one holds beside what the
/// database holds now, and putting one back.
class frmCopias : public Screen
{
    Q_OBJECT

public:
    static frmCopias *open(QWidget *parent);
    ~frmCopias() override;

private:
    explicit frmCopias(QWidget *parent);
    void connectControls();
    void showCopies();
    void showContents(const QString &path);
    void chooseFolder();
    void copyNow();
    void restore();

    std::unique_ptr<Ui::frmCopias> m_ui;
    std::vector<autobackup::Copy> m_copies;
    QString m_shown; ///< the copy whose contents are shown
};
