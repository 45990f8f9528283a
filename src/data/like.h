#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>

#include <optional>
#include <string>
#include <string_view>

/// The text comparison of the database: letters match whatever their case (all of Unicode), accents count,
/// "%" stands for any run of characters and "_" for one; no other character is special.
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
    std::u32string m_folded;
    bool m_wildcards = false;
    bool m_everything = false;
};

namespace textorder {

/// One letter for every case of a letter. A letter that is not one half of an upper and lower pair (such as
/// the Kelvin sign or the dotted capital I) is a letter of its own, so nothing beyond ASCII ever becomes
/// ASCII.
QString folded(QStringView text);
bool equalFolded(QStringView a, QStringView b);
/// `text` with every combination of cases of its letters beyond ASCII; nothing when there are more than 64.
std::optional<QStringList> caseVariants(QStringView text);
/// Portuguese dictionary order, letter case ignored: negative, zero or positive.
int compareNames(QStringView a, QStringView b);
int compareNames(std::string_view utf8A, std::string_view utf8B);

} // namespace textorder
