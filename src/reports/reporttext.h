#pragma once

#include "data/savefile.h"
#include "reports/report.h"

class QIODevice;

/// Reports as files. A file is replaced only when the new one is complete; `progress` may be null. All throw
/// Error::Kind::File.
namespace reporttext {

/// The product's line on every report.
inline constexpr QStringView productLine = u"Tavaro organizando a sua vida financeira!";

/// The last lines of every text file and page: when it was made, the company, its slogan, the closing line.
void writeTextClosing(QIODevice &device);
/// The same, within the page's centred paragraph.
void writeHtmlClosing(QIODevice &device);

void writeText(QIODevice &device, const Report &report, Progress *progress);
void writeHtml(QIODevice &device, const Report &report, Progress *progress);
void saveText(const QString &path, const Report &report, Progress *progress);
void saveHtml(const QString &path, const Report &report, Progress *progress);

} // namespace reporttext
