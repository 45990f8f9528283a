#pragma once

#include <QString>

#include <functional>
#include <vector>

/// The typical seconds of two ways to do the same.
struct Timing
{
    double ours = 0, floor = 0;
    double ratio() const { return ours / floor; }
};

/// The middle of several values.
double median(std::vector<double> values);
double seconds(const std::function<void()> &work);
/// Runs both once to warm up, then `times` times in turn, so that whatever else the machine does slows both
/// alike. Gives the median of each.
Timing inTurn(int times, const std::function<void()> &ours, const std::function<void()> &floor);

/// The table that the benchmarks print, in Markdown: a line for each measure as soon as it is known.
class Table
{
public:
    /// One measure. `value` is to be at most `bound`.
    void add(const QString &task, const QString &ours, const QString &floor, double value, double bound);
    void add(const QString &task, const Timing &timing, double bound);
    bool allWithinBounds() const { return m_ok; }

private:
    bool m_begun = false;
    bool m_ok = true;
};

/// "12.3 ms".
QString timeText(double seconds);
