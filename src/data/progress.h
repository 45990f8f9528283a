#pragma once

#include <QtGlobal>

#include <functional>

/// Thrown by Progress::advance() when the user gave the work up; nothing is left half done.
struct Cancelled
{
};

/// Who is told how far a long read or write has come. The work calls it for every row; an implementation
/// decides whether and how often anything is shown.
class Progress
{
public:
    virtual ~Progress() = default;
    /// The work begins. `total` gives the number of rows; it is asked only if the work proves long.
    virtual void begin(std::function<qint64()> total) = 0;
    virtual void advance(qint64 done) = 0;
};
