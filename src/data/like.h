#pragma once

#include <QString>
#include <QStringView>

#include <string_view>

/// The text comparison of the database: letters match whatever their case (all of Unicode), accents count, "%" stands
/// for any run of characters and "_" for one; no other character is special.
class LikePattern
{
public:
    explicit LikePattern(QStringView pattern);

    bool hasWildcards() const { return m_wildcards; }
    /// True for "%", "%%" …: any text matches.
    bool matchesEverything() const { return m_everything; }
    bool matches(QStringView text) const;
    bool matches(std::string_view utf8) const;

private:
    QString m_folded;
    std::string m_foldedAscii; ///< the folded pattern when it is all ASCII, for matching UTF-8 in place
    bool m_wildcards = false;
    bool m_everything = false;
    bool m_ascii = false;
};

namespace textorder {

/// One letter for every case of a letter. Compatibility signs (such as the Kelvin sign) are letters of their own.
QString folded(QStringView text);
bool equalFolded(QStringView a, QStringView b);
/// Portuguese dictionary order, letter case ignored: negative, zero or positive.
int compareNames(QStringView a, QStringView b);

}
