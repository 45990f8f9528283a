#pragma once

#include <QString>

namespace sql {

/// The text as a value within an SQL text: 'text'. The program's dialect has no way to write an apostrophe
/// inside one: a text that holds it throws Error::Kind::Query, before anything is run.
QString literal(const QString &text);
/// The pattern of texts that contain this one: '%text%'. Throws as literal() does.
QString containing(const QString &text);

} // namespace sql
