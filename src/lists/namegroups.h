#pragma once

#include "data/like.h"

#include <QHash>

#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>

/// What the rows of one pass add up to by a text column, asked for by name: a name gets what the rows whose
/// text is `like` it add up to. A name without wildcards is looked up, one with them (% and _) is compared
/// with every text that there is. `Sums` is added up with +=. All rows come before the first question.
template <typename Sums>
class NameGroups
{
public:
    NameGroups() = default;
    NameGroups(const NameGroups &other) : m_groups(other.m_groups) {}
    NameGroups &operator=(const NameGroups &) = delete;

    /// The sums of the rows with this text, as it is written. Null is like no name: its rows are left out.
    Sums &of(std::string_view text)
    {
        if (!m_last || m_last->first != text) { // rows often come in runs
            auto found = m_groups.find(text);
            if (found == m_groups.end())
                found = m_groups.emplace(std::string(text), Sums()).first;
            m_last = &*found;
        }
        return m_last->second;
    }

    Sums like(const QString &name) const
    {
        Sums sums{};
        if (const LikePattern pattern(name); pattern.hasWildcards()) {
            for (const auto &[text, group] : m_groups)
                if (pattern.matches(std::string_view(text)))
                    sums += group;
        } else if (const auto found = folded().constFind(textorder::folded(name));
                   found != m_folded.constEnd()) {
            sums = *found;
        }
        return sums;
    }

private:
    struct Hash
    {
        using is_transparent = void;
        std::size_t operator()(std::string_view text) const { return std::hash<std::string_view>()(text); }
    };
    using Groups = std::unordered_map<std::string, Sums, Hash, std::equal_to<>>;

    const QHash<QString, Sums> &folded() const
    {
        if (m_folded.isEmpty())
            for (const auto &[text, group] : m_groups)
                m_folded[textorder::folded(QString::fromStdString(text))] += group;
        return m_folded;
    }

    Groups m_groups;
    typename Groups::value_type *m_last = nullptr;
    mutable QHash<QString, Sums> m_folded; ///< by text without letter case; made when first asked for
};
