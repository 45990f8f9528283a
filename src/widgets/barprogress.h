#pragma once

#include "data/progress.h"

class QProgressBar;

/// Moves a bar of a screen, in some fifty steps, along with another telling of the same work. The bar starts
/// anew for each piece of it, and is full in the end.
class BarProgress : public Progress
{
public:
    BarProgress(QProgressBar &bar, Progress *next) : m_bar(bar), m_next(next) {}
    ~BarProgress() override;
    Q_DISABLE_COPY_MOVE(BarProgress)

    void begin(std::function<qint64()> total) override;
    void advance(qint64 done) override
    {
        if (done >= m_nextStep)
            move(done);
        if (m_next)
            m_next->advance(done);
    }

private:
    static constexpr qint64 firstStep = 2000; ///< fewer rows are done before a bar could be seen

    void move(qint64 done);

    QProgressBar &m_bar;
    Progress *m_next;
    std::function<qint64()> m_total; ///< asked only when there is something to see
    qint64 m_step = firstStep, m_nextStep = firstStep;
};
