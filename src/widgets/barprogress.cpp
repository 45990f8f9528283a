#include "widgets/barprogress.h"

#include <QProgressBar>

#include <algorithm>
#include <limits>

BarProgress::~BarProgress()
{
    m_bar.setMaximum(std::max(m_bar.maximum(), 1));
    m_bar.setValue(m_bar.maximum());
}

void BarProgress::begin(std::function<qint64()> total)
{
    m_total = total;
    m_step = m_nextStep = firstStep;
    m_bar.setValue(0);
    if (m_next)
        m_next->begin(std::move(total));
}

void BarProgress::move(qint64 done)
{
    if (done == firstStep && m_total) {
        const qint64 total = std::clamp<qint64>(m_total(), 1, std::numeric_limits<int>::max());
        m_bar.setMaximum(int(total));
        m_step = std::max<qint64>(total / 50, 1);
    }
    m_bar.setValue(int(done));
    m_nextStep = done + m_step;
}
