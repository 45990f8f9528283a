#pragma once

#include "agenda/duealert.h"
#include "widgets/screen.h"

#include <array>

namespace Ui {
class frmAlerta;
}
class ListView;
class QLabel;
class QPushButton;

/// The pending entries of both sides that fall due today. The lists follow changes; an entry is opened by a
/// double click and settled by a command.
class frmAlerta : public Screen
{
    Q_OBJECT

public:
    /// Null when nothing falls due today, or when the data cannot be read, which is told.
    static frmAlerta *open(QWidget *parent);
    ~frmAlerta() override;

private:
    struct Half
    {
        const Side &side;
        ListView *list;
        QLabel *totals;
        QPushButton *settle;
    };

    explicit frmAlerta(QWidget *parent);
    bool read();
    void settle(const Half &half);
    bool isEmpty() const;

    std::unique_ptr<Ui::frmAlerta> m_ui;
    std::vector<Half> m_halves;
};
