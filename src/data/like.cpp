#include "data/like.h"

#include <QCollator>
#include <QLocale>

#include <algorithm>

namespace {

constexpr qsizetype maxPairedLetters = 6; // 64 spellings

char32_t fold(char32_t letter)
{
    if (letter < 0x80)
        return letter >= U'A' && letter <= U'Z' ? letter + 32 : letter;
    if (letter > QChar::LastValidCodePoint) // from text that is no UTF-8
        return letter;
    const char32_t lower = QChar::toLower(letter);
    return lower >= 0x80 && QChar::toUpper(lower) == letter ? lower : letter;
}

/// The other half of a letter's pair beyond ASCII; the letter itself when it has none.
char32_t otherCase(char32_t letter)
{
    if (letter < 0x80)
        return letter;
    const char32_t lower = fold(letter);
    if (lower != letter)
        return lower;
    const char32_t upper = QChar::toUpper(letter);
    return fold(upper) == letter ? upper : letter;
}

/// Reads one character and moves past it; a byte that is no UTF-8 counts as a character of its own.
char32_t nextCharacter(const char *&at, const char *end)
{
    const auto first = static_cast<unsigned char>(*at++);
    if (first < 0xC0)
        return first;
    const int following = first >= 0xF0 ? 3 : first >= 0xE0 ? 2 : 1;
    char32_t character = first & (0x3Fu >> following);
    for (int i = 0; i < following && at < end && (static_cast<unsigned char>(*at) & 0xC0) == 0x80; ++i)
        character = (character << 6) | (static_cast<unsigned char>(*at++) & 0x3Fu);
    return character;
}

/// The rank of the characters whose order needs no table: blank, digits, letters; 0 for any other.
int plainRank(char c)
{
    if (c >= 'a' && c <= 'z')
        return c;
    if (c >= 'A' && c <= 'Z')
        return c + ('a' - 'A');
    return c == ' ' || (c >= '0' && c <= '9') ? c : 0;
}

const QCollator &portugueseCollator()
{
    static const QCollator collator = [] {
        QCollator portuguese(QLocale(QLocale::Portuguese, QLocale::Brazil));
        portuguese.setCaseSensitivity(Qt::CaseInsensitive);
        return portuguese;
    }();
    return collator;
}

} // namespace

LikePattern::LikePattern(QStringView pattern)
{
    for (const uint character : pattern.toUcs4())
        m_folded += fold(character);
    m_wildcards = m_folded.find_first_of(U"%_") != std::u32string::npos;
    m_everything = !m_folded.empty() && m_folded.find_first_not_of(U'%') == std::u32string::npos;
}

bool LikePattern::matches(QStringView text) const
{
    const QByteArray utf8 = text.toUtf8();
    return matches(std::string_view(utf8.constData(), std::size_t(utf8.size())));
}

bool LikePattern::matches(std::string_view utf8) const
{
    const char *at = utf8.data();
    const char *const end = at + utf8.size();
    std::size_t i = 0;
    // After a "%": where to go on in the pattern, and how much of the text that "%" covers so far.
    std::size_t resumePattern = std::u32string::npos;
    const char *resumeText = nullptr;
    while (at < end) {
        if (i < m_folded.size() && m_folded[i] == U'%') {
            resumePattern = ++i;
            resumeText = at;
            if (i == m_folded.size())
                return true;
            continue;
        }
        const char *next = at;
        const char32_t letter = fold(nextCharacter(next, end));
        if (i < m_folded.size() && (m_folded[i] == U'_' || m_folded[i] == letter)) {
            ++i;
            at = next;
        } else if (resumePattern != std::u32string::npos) {
            i = resumePattern;
            nextCharacter(resumeText, end);
            at = resumeText;
        } else {
            return false;
        }
    }
    return m_folded.find_first_not_of(U'%', i) == std::u32string::npos;
}

namespace textorder {

QString folded(QStringView text)
{
    QString result;
    result.reserve(text.size());
    for (const uint character : text.toUcs4())
        result += QChar::fromUcs4(fold(character));
    return result;
}

bool equalFolded(QStringView a, QStringView b)
{
    return a == b || folded(a) == folded(b);
}

std::optional<QStringList> caseVariants(QStringView text)
{
    const QList<uint> characters = text.toUcs4();
    const auto paired =
        std::count_if(characters.begin(), characters.end(), [](uint c) { return otherCase(c) != c; });
    if (paired > maxPairedLetters)
        return std::nullopt;
    QStringList variants{QString()};
    for (const uint character : characters) {
        const char32_t other = otherCase(character);
        QStringList longer;
        for (const QString &variant : variants) {
            longer << QString(variant).append(QChar::fromUcs4(character));
            if (other != character)
                longer << QString(variant).append(QChar::fromUcs4(other));
        }
        variants = longer;
    }
    return variants;
}

int compareNames(QStringView a, QStringView b)
{
    return portugueseCollator().compare(a, b);
}

int compareNames(std::string_view utf8A, std::string_view utf8B)
{
    // Names mostly differ first in a plain letter or digit; only the others are worth the collator.
    const std::size_t common = std::min(utf8A.size(), utf8B.size());
    std::size_t i = 0;
    while (i < common &&
           (utf8A[i] == utf8B[i] || (plainRank(utf8A[i]) && plainRank(utf8A[i]) == plainRank(utf8B[i]))))
        ++i;
    if (i == utf8A.size() && i == utf8B.size())
        return 0;
    const int rankA = i < utf8A.size() ? plainRank(utf8A[i]) : -1;
    const int rankB = i < utf8B.size() ? plainRank(utf8B[i]) : -1;
    if (rankA != 0 && rankB != 0)
        return rankA < rankB ? -1 : 1;
    return compareNames(QString::fromUtf8(utf8A.data(), qsizetype(utf8A.size())),
                        QString::fromUtf8(utf8B.data(), qsizetype(utf8B.size())));
}

} // namespace textorder
