#pragma once

#include "entries/entrypane.h"
#include "widgets/listview.h"

#include <QCoreApplication>

/// The payables' tab on a screen of its own, with its list read and painted.
class ShownPane : public EntryPane
{
public:
    ShownPane() : EntryPane(payable(), payablePaneNames())
    {
        resize(1366, 728);
        show();
        fill();
    }

    /// What the list has changed is painted once.
    void paint() { QCoreApplication::processEvents(); }
    void fill()
    {
        reload();
        paint();
    }
};
