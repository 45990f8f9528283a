#pragma once

#include <QString>

#include <vector>

/// A small INI file in UTF-8: sections and keys are found in any letter case and keep their spelling and
/// order. A value is one line of text, blanks at its ends included; line breaks inside it are written as "\n"
/// and "\r" and a backslash as "\\". Lines may end in CR LF; a file that is no UTF-8 is read as Latin-1.
/// Comments are not kept.
class IniFile
{
public:
    enum class Readers { Owner, Everyone };

    /// Reads the file; a missing or unreadable one is empty.
    explicit IniFile(QString path);

    QString path() const { return m_path; }
    QString value(const QString &section, const QString &key, const QString &defaultValue) const;
    void setValue(const QString &section, const QString &key, const QString &value);
    /// Writes the file beside the old one and renames it. Throws Error::Kind::File.
    void save(Readers readers = Readers::Owner) const;

private:
    struct Entry
    {
        QString key, value;
    };
    struct Section
    {
        QString name;
        std::vector<Entry> entries;
    };

    void parse(const QString &text);
    const Entry *find(const QString &section, const QString &key) const;
    Section &sectionNamed(const QString &name);

    QString m_path;
    std::vector<Section> m_sections;
};
