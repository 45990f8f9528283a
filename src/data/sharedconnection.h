#pragma once

#include "data/connection.h"

#include <memory>

/// The connection that all screens share. It is asked for before every query; the key is derived and the file
/// opened only when path or file are not those of the last time, so asking costs microseconds.
class SharedConnection
{
public:
    /// The open connection to `path`; it stays usable while it is held, whatever is opened next. Throws
    /// Error::Kind::Open; then nothing is open.
    std::shared_ptr<Connection> open(const QString &path);
    void close() { m_connection.reset(); }
    bool isOpen() const { return m_connection != nullptr; }

private:
    std::shared_ptr<Connection> m_connection;
};
