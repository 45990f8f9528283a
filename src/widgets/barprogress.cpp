#include "widgets/barprogress.h"

#include <QProgressBar>

#include <algorithm>
#include <limits>

BarProgress::~BarProgress()
{
    m_bar.setValue(m_bar.maximum());
}

void BarProgress::begin(std::function<qint64()> total)
{
    m_bar.setRange(0, int(std::clamp<qint64>(total(), 1, std::numeric_limits<int>::max())));
    m_bar.setValue(0);
    m_next.begin(std::move(total));
}

void BarProgress::advance(qint64 done)
{
    m_bar.setValue(int(done));
    m_next.advance(done);
}
