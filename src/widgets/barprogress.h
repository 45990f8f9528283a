#pragma once

#include "data/progress.h"

class QProgressBar;

/// Advances a bar of a screen along with another telling of the same work. The bar starts anew for each piece
/// of it, and is full in the end.
class BarProgress : public Progress
{
public:
    BarProgress(QProgressBar &bar, Progress &next) : m_bar(bar), m_next(next) {}
    ~BarProgress() override;
    Q_DISABLE_COPY_MOVE(BarProgress)

    void begin(std::function<qint64()> total) override;
    void advance(qint64 done) override;

private:
    QProgressBar &m_bar;
    Progress &m_next;
};
