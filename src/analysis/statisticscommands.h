#pragma once

#include "analysis/figurekind.h"

class QWidget;

/// The commands that show figures at once, without asking for anything. Each reads the data, tells when there
/// are none, and opens the report or the chart.
namespace statisticscommands {

void movementReport(const Side &side, ViewPeriod period, QWidget *parent);
void statistics(const FigureKind &kind, ViewPeriod period, QWidget *parent);
void chart(const FigureKind &kind, ViewPeriod period, QWidget *parent);
/// By the chart of accounts of one side.
void centres(const Side &side, QWidget *parent);
void stock(QWidget *parent);
void sales(QWidget *parent);

} // namespace statisticscommands
