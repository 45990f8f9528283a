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

    using EntryPane::query;

    /// What was asked for is read to the end and painted once.
    void paint()
    {
        feed().finish();
        QCoreApplication::processEvents();
    }
    void fill()
    {
        reload();
        paint();
    }
};
