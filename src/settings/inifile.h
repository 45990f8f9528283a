#pragma once

#include <QString>

#include <vector>

/// A small INI file in UTF-8: sections and keys are found in any letter case and keep their spelling and order.
/// A value is one line of text; line breaks inside it are written as "\n" and a backslash as "\\".
class IniFile
{
public:
    /// Reads the file; a missing or unreadable one is empty.
    explicit IniFile(QString path);

    QString path() const { return m_path; }
    QString value(const QString &section, const QString &key, const QString &defaultValue) const;
    void setValue(const QString &section, const QString &key, const QString &value);
    /// Writes the file beside the old one and renames it, readable by its owner only. Throws Error::Kind::File.
    void save() const;

private:
    struct Entry { QString key, value; };
    struct Section { QString name; std::vector<Entry> entries; };

    QString m_path;
    std::vector<Section> m_sections;
};
