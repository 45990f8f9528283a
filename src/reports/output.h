#pragma once

#include "data/error.h"

#include <QIODevice>
#include <QStringView>

#include <string>
#include <string_view>

/// Collects UTF-8 text and writes it to an open device in large pieces. Throws Error::Kind::File when the
/// device does not take it all. What was not flushed is lost.
class Output
{
public:
    explicit Output(QIODevice &device) : m_device(device) { m_text.reserve(2 * pieceSize); }

    Output &operator<<(std::string_view utf8)
    {
        m_text += utf8;
        return *this;
    }
    Output &operator<<(QStringView text)
    {
        const QByteArray utf8 = text.toUtf8();
        m_text.append(utf8.constData(), std::size_t(utf8.size()));
        return *this;
    }
    void repeat(std::size_t count, char c) { m_text.append(count, c); }
    /// Between rows: keeps memory constant.
    void flushIfLong()
    {
        if (m_text.size() >= pieceSize)
            flush();
    }
    void flush()
    {
        if (m_device.write(m_text.data(), qint64(m_text.size())) != qint64(m_text.size()))
            throw Error(Error::Kind::File, m_device.errorString());
        m_text.clear();
    }

private:
    static constexpr std::size_t pieceSize = 65536;

    QIODevice &m_device;
    std::string m_text;
};
