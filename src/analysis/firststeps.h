#pragma once

class Connection;

/// How far a new business has come: an account, what is in it today, the first entry.
struct FirstSteps
{
    bool hasAccount = false, hasBalance = false, hasEntry = false;

    bool areDone() const { return hasAccount && hasBalance && hasEntry; }
    static FirstSteps read(Connection &connection);
};
